<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AppController</name>
    <message>
        <source>changes that are not saved are kept in this folder, and nothing else</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartPicture</name>
    <message>
        <source>there is not enough memory for a picture of this size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a picture is at least one unit wide and high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pictures end with .%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>another program has it open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has it open (process %2 on %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large: %1 bytes, at most %2 are read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no backup can be kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program has changed it meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentRecovery</name>
    <message>
        <source>its file is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its file has been changed since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program has taken it meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is open and has changes that are not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: folders cannot be locked there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>Activity for devices and services (FIT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FIT knows no dates before %1, and the tour starts at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FIT knows no dates after %1, and the tour ends at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report for the browser (HTML)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All values, for programs (JSON)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All samples as a table (CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table of the tours, a line for each (CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Training Center (TCX)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it can tell of the years 1 to 9999 only, and a tour has the date %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HtmlPage</name>
    <message>
        <source>en</source>
        <comment>code of the language that all this is translated to</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuEntries</name>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&quot;%1&quot; is no list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an archive, but not of a tour library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a tour library: &quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a readable document: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document has no file yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was opened for reading only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OdoData</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, a dump has no more than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, at least %2 are needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a raw dump: it does not begin with &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a raw dump: no record and no hexadecimal digits at byte %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OdoTour</name>
    <message>
        <source>date changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tour removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a start value of a tour is no whole number of 32 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tour is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tour is stored in version %1, which this program does not know</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the recording of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the title of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the description of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the removed mark of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the start of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the byte order of a tour is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Period</name>
    <message>
        <source>%1 %2</source>
        <comment>month and year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week %1, %2</source>
        <comment>number and year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed tours are not counted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(removed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the list of tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PortProblem</name>
    <message>
        <source>permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>permission denied. Add yourself to the group %1 (sudo usermod -aG %1 $USER), then log out and in again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a folder, not a serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in use by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a transfer from it is under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port cannot be set to 9,600 bit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port was closed or unplugged before anything arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port was closed or unplugged after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before anything arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing arrived within %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device fell silent after %1: nothing for %2 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadoutHtml</name>
    <message>
        <source>Point at the chart, or use the arrow keys in it, to see the values there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Altitude (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grade (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cadence</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SeriesSvg</name>
    <message>
        <source>Chart over %1: %2</source>
        <comment>x quantity, series</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatBars</name>
    <message>
        <source>No tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics %1 %2</source>
        <comment>period and quantity</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatQuantity</name>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heart Beats</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatValues</name>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heart beats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average grade uphill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average grade downhill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last tour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourColumns</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation Gain (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Grade (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourExport</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds tours, which an export would replace</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourPage</name>
    <message>
        <source>it holds tours, which a page would replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not printed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 does not take the page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourReport</name>
    <message>
        <source>The tour has no samples.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This tour is removed from its document.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourSummary</name>
    <message>
        <source>Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Climbing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Descending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average while moving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Altitude at the end (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longest climb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average climb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average grade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steepest grade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steepest angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Descents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longest descent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TypedStreamReader</name>
    <message>
        <source>reference to an entry of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>archives of more than 1 GiB are not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no typed stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>typed stream of unknown version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what it holds takes more than %1 MiB of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes wanted, %2 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an integer expected, not the mark 0x%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the integer %1 does not fit its type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>negative length %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference to an entry that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a chain of more than 64 classes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no class name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than 65,536 classes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no type string of values that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of an object that was not begun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object without a class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>objects nested more than 200 deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object that contains itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>references to the same objects over and over again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an integer expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bytes expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a C string expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a data block of %1 bytes that says %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 elements do not fit into %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list ends after %1 of %2 elements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a data block of %1 bytes expected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>nothing can be written in its folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file can have this name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Keeps the tours of a cycle computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What of the log is written: none, errors or trace.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts with the simulated device plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where newer versions are looked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents to open and raw dumps to import.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::AltitudeRange</name>
    <message>
        <source>&amp;Altitudes from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest altitude of the chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest altitude of the chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no altitude. Write a number, like 850.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is out of range. It has to be between %2 and %3 %4.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::ApplicationWindows</name>
    <message>
        <source>a document without a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept aside: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The document as it was on %1, with %Ln tour(s), was kept.</source>
        <comment>date</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Meanwhile %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ridelog ended before %1 was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask Me &amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What ridelog kept of %1 could not be recovered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

It is in %2, and stays there until it is discarded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was kept of %1 was not discarded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download address “%1” could not be opened in a browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newer versions could not be looked for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::BarChartView</name>
    <message>
        <source>Bar chart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::ChartArrayView</name>
    <message>
        <source>Chart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::ConnectView</name>
    <message>
        <source>&amp;Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Connect, wait for the line above to say that it is waiting, and then start sending from the device&apos;s own menu. A transfer takes about 85 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial &amp;port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionEdit</name>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionLoader</name>
    <message>
        <source>the server answers %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this build of ridelog has no address to look for updates at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an address of the web (http, https) or of a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>larger than %1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::EmptyDocumentView</name>
    <message>
        <source>No tours yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take them from your cycle computer, or import a raw dump of its memory. You can also drop a dump on this window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect De&amp;vice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::ExportPanel</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected tours (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All tours (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tours:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All tours in one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s), such as %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Replace %Ln file(s)?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>It is in %1 already. What it holds is lost then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In %1 there are already %2. What they hold is lost then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another export is under way. Try again when it has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export cancelled: nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Export cancelled: %1 of %Ln file(s) were written.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported as %1.</source>
        <comment>name of a file</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported to %1.</source>
        <comment>name of a folder</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) were written.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be written: %1</source>
        <comment>list of files and reasons</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::ExportProgress</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln tour(s)</source>
        <comment>number of tours done</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::FolderField</name>
    <message>
        <source>Say in which folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not write in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::MainWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;store Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how Removed Tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un&amp;its</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Miles, mph and Feet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kilometres, km/h and Metres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &amp;Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect &amp;Drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated De&amp;vice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About ridelog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Documents Yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no simulated device: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The simulated device is plugged in. Press Connect to take its tours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No mail program could be started. Write to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About ridelog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;ridelog %1&lt;/b&gt;&lt;br&gt;Keeps the tours of a cycle computer for a lifetime.&lt;br&gt;&lt;br&gt;Free software under the MIT licence.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document can only be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average speed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no tours in this period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Dump</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not imported: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln tour(s) added, %2 already there.</source>
        <comment>file, number of tours</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The document can only be read (%1). Save it under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed %1 since you opened it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you overwrite it, what the other program wrote is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back to what %1 holds?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All changes since it was saved are lost, and cannot be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was not reverted: it has changed since you were asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is as it was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A transfer from the device is under way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you close the window now, it ends before the tours have arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes of %1 before it is closed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are lost if you do not save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) removed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>What is removed stays in the document: see Edit &gt; Show Removed Tours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) restored.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>; what arrived is in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; what arrived could not be kept in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dis&amp;connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no serial port. Plug in the device&apos;s cable, or choose Device &gt; Simulated Device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving, %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Receiving, %1 %, %Ln second(s) left</source>
        <comment>percentage</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>What arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken off: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no dump of the device: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Finished: %Ln tour(s) added, %1 already there</source>
        <comment>number of tours</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::MyDocument</name>
    <message numerus="yes">
        <source>adding %n tours</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::PreferenceAwareFormatter</name>
    <message>
        <source>Couldn not convert  to float</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;vice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you choose lasts until ridelog ends: %1 cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kilometres, km/h and metres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Miles, mph and feet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfers:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save the raw dump that arrives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As odoData.odo in your home folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newer versions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for them &amp;automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days between two looks for newer versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counts from the next start on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Al&amp;titude:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the Altitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Speed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ulse:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the Pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Below the pulse range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour below the Pulse Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Within the pulse range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour within the Pulse Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ab&amp;ove the pulse range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour above the Pulse Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed has an a&amp;xis of its own beside another series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest pulse of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest pulse of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>beats per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zones:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw them &amp;behind the pulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fade those outside the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Alternate transfer settings (two stop bits)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try them when what arrives is no dump of the device. They count from the next transfer on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> day(s)</source>
        <comment>after the number</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesPage</name>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::SaveChartPanel</name>
    <message>
        <source>it holds tours, which a picture would replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not saved: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart was saved as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use as default size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::StartWindow</name>
    <message>
        <source>ridelog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recent documents:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Dump…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::StatValuesView</name>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::StatWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Report…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;revious Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next &amp;Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statistics are copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics – %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This window goes from the year %1 to the year %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::TourSummaryView</name>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::TourTableView</name>
    <message>
        <source>Tours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reverse Order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::TourWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Su&amp;mmary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lin&amp;k…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here is no link to a page or a mail address that could be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manual Range of Altitudes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yyyy/MM/dd - HH:mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address of the page that the selected words lead to, empty for none:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No samples are selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s) copied.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The summary is copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ridelog::XMLUpdater</name>
    <message>
        <source>it names no application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New version found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No new version found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No new version available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it declares entities or attributes of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its encoding is not UTF-8 or UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not well-formed XML, line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the entity %1 is not declared</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
