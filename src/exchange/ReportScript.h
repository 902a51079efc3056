#pragma once

namespace ridelog {

/// Tells the values of the sample that mouse, finger or arrow keys point at. Without "less than" and
/// ampersands, so that the page can be read as XML.
inline constexpr const char* reportScript = R"js((function () {
  "use strict";
  var samplesOfPage = 15;
  document.querySelectorAll("figure.tour").forEach(function (figure) {
    var svg = figure.querySelector("svg");
    var mark = svg.querySelector(".mark");
    var hint = figure.querySelector(".hint");
    var readout = figure.querySelector(".readout");
    var cells = readout.querySelectorAll("dd");
    var names = readout.querySelectorAll("dt");
    var columns = null;
    var places = [];
    var shown = -1;

    // The places of the samples are those of the line that has them all, in steps of a tenth.
    function load() {
      if (columns) { return; }
      columns = JSON.parse(figure.querySelector("script").textContent);
      var steps = svg.querySelector(".places").getAttribute("d").match(/-?\d+/g).map(Number);
      var x = 0;
      for (var i = 0; steps.length > i; i += 2) {
        x += steps[i];
        places.push(x / 10);
      }
      svg.setAttribute("role", "slider");
      svg.setAttribute("aria-valuemin", "0");
      svg.setAttribute("aria-valuemax", String(places.length - 1));
    }

    function show(index) {
      load();
      shown = Math.max(0, Math.min(places.length - 1, index));
      var texts = columns.map(function (column) { return column[shown]; });
      texts.forEach(function (text, column) { cells[column].textContent = text; });
      hint.hidden = true;
      readout.hidden = false;
      mark.setAttribute("transform", "translate(" + places[shown] + ")");
      mark.style.visibility = "visible";
      svg.setAttribute("aria-valuenow", String(shown));
      svg.setAttribute("aria-valuetext", texts.map(function (text, column) {
        return names[column].textContent + ": " + text;
      }).join(", "));
    }

    function point(event) {
      load();
      var box = svg.getBoundingClientRect();
      var x = (event.clientX - box.left) / box.width * svg.viewBox.baseVal.width;
      var nearest = 0;
      places.forEach(function (place, index) {
        if (Math.abs(places[nearest] - x) > Math.abs(place - x)) { nearest = index; }
      });
      show(nearest);
    }

    function step(event) {
      if (event.altKey || event.ctrlKey || event.metaKey) { return; }
      var to = {
        ArrowLeft: shown - 1, ArrowRight: shown + 1,
        PageUp: shown - samplesOfPage, PageDown: shown + samplesOfPage,
        Home: 0, End: Infinity
      }[event.key];
      if (to === undefined) { return; }
      show(to);
      event.preventDefault();
    }

    hint.hidden = false;
    svg.addEventListener("pointermove", point);
    svg.addEventListener("pointerdown", point);
    svg.addEventListener("keydown", step);
  });
}());
)js";

} // namespace ridelog
