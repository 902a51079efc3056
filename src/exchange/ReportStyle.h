#pragma once

namespace ridelog {

/// How reports look: on narrow and wide screens, light and dark, and on paper. Charts stay on white paper,
/// for which the rider has chosen their colours. Lines of charts are drawn in tenths of the other units.
inline constexpr const char* reportStyle = R"css(:root {
  color-scheme: light dark;
  --text: #1d1d1f; --quiet: #5f6368; --rule: #d7d7db; --page: #fff; --link: #0b57d0;
}
@media screen and (prefers-color-scheme: dark) {
  :root { --text: #e8e8ea; --quiet: #a5a9ae; --rule: #46484c; --page: #1b1c1e; --link: #8ab4f8; }
}
* { box-sizing: border-box; }
body {
  margin: 0; background: var(--page); color: var(--text);
  font: 16px/1.5 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", sans-serif;
}
main { max-width: 68rem; margin: 0 auto; padding: 1.5rem 1rem 3rem; }
h1, h2, h3, p, dl, figure { margin: 0; }
h1 { font-size: 1.75rem; line-height: 1.25; overflow-wrap: anywhere; }
h2 { font-size: 1.35rem; line-height: 1.3; overflow-wrap: anywhere; margin-top: 2rem; }
h3 { font-size: 1rem; white-space: nowrap; }
a { color: var(--link); }
.when, .note, .hint, .back { color: var(--quiet); }
.note, .hint, .back { font-size: .875rem; }
figure, .summary, .description, .scroll, .bars { margin-top: 1rem; }
.scroll { overflow-x: auto; }
svg { display: block; width: 100%; background: #fff; border-radius: 4px; }
svg text { fill: #333; font: 12px system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", sans-serif; }
svg .begin { text-anchor: start; font-weight: 600; }
svg .middle { text-anchor: middle; }
svg .end { text-anchor: end; }
svg .grid { fill: none; stroke: #dcdce0; stroke-width: 1; }
svg .base { fill: none; stroke: #8a8d91; stroke-width: 1; }
svg .mark { fill: none; stroke: #333; stroke-width: 1; visibility: hidden; }
svg .line { fill: none; stroke-width: 15; stroke-linejoin: round; stroke-linecap: round; }
svg .altitude { stroke: var(--altitude); }
svg .speed { stroke: var(--speed); }
svg .pulse { stroke: var(--pulse); }
svg .dot { stroke: none; }
svg .altitude.dot { fill: var(--altitude); }
svg .speed.dot { fill: var(--speed); }
svg .pulse.dot { fill: var(--pulse); }
.tour svg { min-width: 36rem; }
.tour svg:focus-visible { outline: 2px solid var(--link); outline-offset: -2px; }
.readout, .hint { min-height: 4.75rem; }
@media (max-width: 40rem) { .readout, .hint { min-height: 7.25rem; } }
.readout { display: grid; grid-template-columns: repeat(auto-fill, minmax(6.25rem, 1fr)); gap: 0 .75rem; }
.readout[hidden], .hint[hidden] { display: none; }
.readout dt { font-size: .75rem; line-height: 1.25; color: var(--quiet); white-space: nowrap; }
.readout dd { margin: 0; line-height: 1.4; font-variant-numeric: tabular-nums; white-space: nowrap; }
.summary { columns: 17rem 3; column-gap: 2.5rem; }
.group { break-inside: avoid; padding-bottom: 1rem; }
.summary dl div { display: flex; justify-content: space-between; gap: 1rem; break-inside: avoid;
  border-bottom: 1px solid var(--rule); }
.summary dd { margin: 0; text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.description { max-width: 44rem; overflow-wrap: anywhere; }
.description p + p { margin-top: .75rem; }
.bars { display: grid; grid-template-columns: repeat(auto-fit, minmax(min(100%, 26rem), 1fr)); gap: 1rem; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; font-size: .9375rem; }
th, td { padding: .25rem .6rem; text-align: right; white-space: nowrap; border-bottom: 1px solid var(--rule); }
th { vertical-align: bottom; white-space: normal; line-height: 1.25; }
th:first-child, td:first-child { padding-left: 0; }
.text { text-align: left; }
td.title { white-space: normal; min-width: 9rem; overflow-wrap: anywhere; }
section.tour { content-visibility: auto; contain-intrinsic-size: auto 56rem; border-top: 1px solid var(--rule);
  margin-top: 2.5rem; }
@page { margin: 15mm; }
@media print {
  :root { color-scheme: light; }
  body { font-size: 10pt; }
  main { max-width: none; padding: 0; }
  h1, h2, h3 { break-after: avoid; }
  h3 { font-size: 9.5pt; }
  .readout, .hint, .back, svg .mark { display: none; }
  .scroll { overflow: visible; }
  .tour svg { min-width: 0; }
  figure, .bars, tr { break-inside: avoid; }
  .summary { columns: 3; column-gap: 1.5rem; font-size: 8pt; }
  .summary dl div { gap: .4rem; }
  .group { padding-bottom: .6rem; }
  .bars { grid-template-columns: 1fr 1fr; }
  table { font-size: 8.5pt; }
  th, td { padding: .15rem .35rem; }
  thead { display: table-header-group; }
  section.tour { content-visibility: visible; break-before: page; border-top: none; margin-top: 0; }
  section.tour h2 { margin-top: 0; }
}
)css";

} // namespace ridelog
