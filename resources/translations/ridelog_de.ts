<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppController</name>
    <message>
        <source>changes that are not saved are kept in this folder, and nothing else</source>
        <translation>dieser Ordner ist nur für nicht gespeicherte Änderungen da</translation>
    </message>
</context>
<context>
    <name>ChartPicture</name>
    <message>
        <source>there is not enough memory for a picture of this size</source>
        <translation>für ein Bild dieser Größe reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>das Bild lässt sich nicht kodieren</translation>
    </message>
    <message>
        <source>a picture is at least one unit wide and high</source>
        <translation>ein Bild ist mindestens eine Einheit breit und hoch</translation>
    </message>
    <message>
        <source>pictures end with .%1</source>
        <translation>Bilder enden auf .%1</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>another program has it open</source>
        <translation>ein anderes Programm hat es geöffnet</translation>
    </message>
    <message>
        <source>%1 has it open (process %2 on %3)</source>
        <translation>%1 hat es geöffnet (Prozess %2 auf %3)</translation>
    </message>
    <message>
        <source>it is too large: %1 bytes, at most %2 are read</source>
        <translation>die Datei ist zu groß: %1 Bytes, gelesen werden höchstens %2</translation>
    </message>
    <message>
        <source>no backup can be kept: %1</source>
        <translation>es lässt sich keine Sicherungskopie anlegen: %1</translation>
    </message>
    <message>
        <source>another program has changed it meanwhile</source>
        <translation>ein anderes Programm hat es inzwischen geändert</translation>
    </message>
</context>
<context>
    <name>DocumentRecovery</name>
    <message>
        <source>its file is gone</source>
        <translation>wurde seine Datei entfernt</translation>
    </message>
    <message>
        <source>its file has been changed since</source>
        <translation>wurde seine Datei geändert</translation>
    </message>
    <message>
        <source>another program has taken it meanwhile</source>
        <translation>ein anderes Programm hat sie inzwischen übernommen</translation>
    </message>
    <message>
        <source>the document is open and has changes that are not saved</source>
        <translation>das Dokument ist geöffnet und hat nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>%1: folders cannot be locked there</source>
        <translation>%1: Ordner lassen sich dort nicht sperren</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>%1 lässt sich nicht entfernen</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>Activity for devices and services (FIT)</source>
        <translation>Aktivität für Geräte und Dienste (FIT)</translation>
    </message>
    <message>
        <source>FIT knows no dates before %1, and the tour starts at %2</source>
        <translation>FIT kennt kein Datum vor %1, und die Tour beginnt am %2</translation>
    </message>
    <message>
        <source>FIT knows no dates after %1, and the tour ends at %2</source>
        <translation>FIT kennt kein Datum nach %1, und die Tour endet am %2</translation>
    </message>
    <message>
        <source>Report for the browser (HTML)</source>
        <translation>Bericht für den Browser (HTML)</translation>
    </message>
    <message>
        <source>All values, for programs (JSON)</source>
        <translation>Alle Werte, für Programme (JSON)</translation>
    </message>
    <message>
        <source>All samples as a table (CSV)</source>
        <translation>Alle Messpunkte als Tabelle (CSV)</translation>
    </message>
    <message>
        <source>A table of the tours, a line for each (CSV)</source>
        <translation>Tabelle der Touren, je eine Zeile (CSV)</translation>
    </message>
    <message>
        <source>Training Center (TCX)</source>
        <translation>Training Center (TCX)</translation>
    </message>
    <message>
        <source>it can tell of the years 1 to 9999 only, and a tour has the date %1</source>
        <translation>dieses Format kennt nur die Jahre 1 bis 9999, und eine Tour hat das Datum %1</translation>
    </message>
</context>
<context>
    <name>HtmlPage</name>
    <message>
        <source>en</source>
        <comment>code of the language that all this is translated to</comment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>MenuEntries</name>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&quot;%1&quot; is no list</source>
        <translation>„%1“ ist keine Liste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no dictionary</source>
        <translation>„%1“ ist kein Wörterbuch</translation>
    </message>
    <message>
        <source>an archive, but not of a tour library</source>
        <translation>ein Archiv, aber nicht das einer Tourensammlung</translation>
    </message>
    <message>
        <source>not a tour library: &quot;%1&quot; is missing</source>
        <translation>keine Tourensammlung: „%1“ fehlt</translation>
    </message>
    <message>
        <source>not a readable document: %1</source>
        <translation>kein lesbares Dokument: %1</translation>
    </message>
    <message>
        <source>the document has no file yet</source>
        <translation>das Dokument hat noch keine Datei</translation>
    </message>
    <message>
        <source>it was opened for reading only</source>
        <translation>es wurde schreibgeschützt geöffnet</translation>
    </message>
</context>
<context>
    <name>OdoData</name>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, a dump has no more than %2</source>
        <translation>keine Rohdaten: %1 Bytes, Rohdaten haben höchstens %2</translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, at least %2 are needed</source>
        <translation>keine Rohdaten: %1 Bytes, mindestens %2 sind nötig</translation>
    </message>
    <message>
        <source>not a raw dump: it does not begin with &quot;%1&quot;</source>
        <translation>keine Rohdaten: der Anfang ist nicht „%1“</translation>
    </message>
    <message>
        <source>not a raw dump: no record and no hexadecimal digits at byte %1</source>
        <translation>keine Rohdaten: kein Datensatz und keine Hexadezimalziffern bei Byte %1</translation>
    </message>
</context>
<context>
    <name>OdoTour</name>
    <message>
        <source>date changed</source>
        <translation>Datum ändern</translation>
    </message>
    <message>
        <source>change title</source>
        <translation>Titel ändern</translation>
    </message>
    <message>
        <source>change description</source>
        <translation>Beschreibung ändern</translation>
    </message>
    <message>
        <source>tour removed</source>
        <translation>Tour entfernen</translation>
    </message>
    <message>
        <source>a start value of a tour is no whole number of 32 bits</source>
        <translation>ein Anfangswert einer Tour ist keine ganze Zahl mit 32 Bit</translation>
    </message>
    <message>
        <source>a tour is missing</source>
        <translation>eine Tour fehlt</translation>
    </message>
    <message>
        <source>a tour is stored in version %1, which this program does not know</source>
        <translation>eine Tour ist in Version %1 gespeichert, die dieses Programm nicht kennt</translation>
    </message>
    <message>
        <source>the recording of a tour is missing or damaged</source>
        <translation>die Aufzeichnung einer Tour fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the title of a tour is missing or damaged</source>
        <translation>der Titel einer Tour fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the description of a tour is missing or damaged</source>
        <translation>die Beschreibung einer Tour fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the removed mark of a tour is missing or damaged</source>
        <translation>der Vermerk „entfernt“ einer Tour fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the start of a tour is missing or damaged</source>
        <translation>der Beginn einer Tour fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the byte order of a tour is missing or damaged</source>
        <translation>die Bytereihenfolge einer Tour fehlt oder ist beschädigt</translation>
    </message>
</context>
<context>
    <name>Period</name>
    <message>
        <source>%1 %2</source>
        <comment>month and year</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Week %1, %2</source>
        <comment>number and year</comment>
        <translation>Woche %1, %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Gesamt</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Tours</source>
        <translation>Touren</translation>
    </message>
    <message>
        <source>Removed tours are not counted.</source>
        <translation>Entfernte Touren sind nicht mitgezählt.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation>Höhenmeter (%1)</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Durchschnittstempo</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Höchsttempo</translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation>Durchschnittspuls</translation>
    </message>
    <message>
        <source>(removed)</source>
        <translation>(entfernt)</translation>
    </message>
    <message>
        <source>Back to the list of tours</source>
        <translation>Zurück zur Liste der Touren</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln Tour</numerusform>
            <numerusform>%Ln Touren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PortProblem</name>
    <message>
        <source>permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>permission denied. Add yourself to the group %1 (sudo usermod -aG %1 $USER), then log out and in again</source>
        <translation>Zugriff verweigert. Nehmen Sie sich in die Gruppe %1 auf (sudo usermod -aG %1 $USER), und melden Sie sich dann ab und wieder an</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 von %2 Bytes</translation>
    </message>
    <message>
        <source>a folder, not a serial port</source>
        <translation>ein Ordner, keine serielle Schnittstelle</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>keine serielle Schnittstelle</translation>
    </message>
    <message>
        <source>there is no such port</source>
        <translation>diese Schnittstelle gibt es nicht</translation>
    </message>
    <message>
        <source>in use by another program</source>
        <translation>ein anderes Programm benutzt sie</translation>
    </message>
    <message>
        <source>a transfer from it is under way</source>
        <translation>von ihr läuft schon eine Übertragung</translation>
    </message>
    <message>
        <source>the port does not answer</source>
        <translation>die Schnittstelle antwortet nicht</translation>
    </message>
    <message>
        <source>the port cannot be set to 9,600 bit/s</source>
        <translation>die Schnittstelle lässt sich nicht auf 9.600 Bit/s einstellen</translation>
    </message>
    <message>
        <source>the port was closed or unplugged before anything arrived</source>
        <translation>die Schnittstelle wurde geschlossen oder abgezogen, bevor etwas ankam</translation>
    </message>
    <message>
        <source>the port was closed or unplugged after %1</source>
        <translation>die Schnittstelle wurde nach %1 geschlossen oder abgezogen</translation>
    </message>
    <message>
        <source>stopped before anything arrived</source>
        <translation>angehalten, bevor etwas ankam</translation>
    </message>
    <message>
        <source>stopped after %1</source>
        <translation>angehalten nach %1</translation>
    </message>
    <message>
        <source>nothing arrived within %1 s</source>
        <translation>innerhalb von %1 s kam nichts an</translation>
    </message>
    <message>
        <source>the device fell silent after %1: nothing for %2 s</source>
        <translation>das Gerät verstummte nach %1: %2 s lang kam nichts</translation>
    </message>
</context>
<context>
    <name>ReadoutHtml</name>
    <message>
        <source>Point at the chart, or use the arrow keys in it, to see the values there.</source>
        <translation>Zeigen Sie auf das Diagramm, oder benutzen Sie darin die Pfeiltasten, um die Werte dort zu sehen.</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Altitude (%1)</source>
        <translation>Höhe (%1)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Leistung (W)</translation>
    </message>
    <message>
        <source>Grade (%)</source>
        <translation>Steigung (%)</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatur (°C)</translation>
    </message>
    <message>
        <source>Cadence</source>
        <translation>Trittfrequenz</translation>
    </message>
</context>
<context>
    <name>SeriesSvg</name>
    <message>
        <source>Chart over %1: %2</source>
        <comment>x quantity, series</comment>
        <translation>Diagramm über %1: %2</translation>
    </message>
</context>
<context>
    <name>StatBars</name>
    <message>
        <source>No tours</source>
        <translation>Keine Touren</translation>
    </message>
    <message>
        <source>Statistics %1 %2</source>
        <comment>period and quantity</comment>
        <translation>Statistik %1 %2</translation>
    </message>
</context>
<context>
    <name>StatQuantity</name>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Elevation Gain</source>
        <translation>Höhenmeter</translation>
    </message>
    <message>
        <source>Heart Beats</source>
        <translation>Herzschläge</translation>
    </message>
</context>
<context>
    <name>StatValues</name>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Elevation gain</source>
        <translation>Höhenmeter</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Durchschnittstempo</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Höchsttempo</translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation>Durchschnittspuls</translation>
    </message>
    <message>
        <source>Highest pulse</source>
        <translation>Höchster Puls</translation>
    </message>
    <message>
        <source>Heart beats</source>
        <translation>Herzschläge</translation>
    </message>
    <message>
        <source>Average grade uphill</source>
        <translation>Mittlere Steigung</translation>
    </message>
    <message>
        <source>Average grade downhill</source>
        <translation>Mittleres Gefälle</translation>
    </message>
    <message>
        <source>First tour</source>
        <translation>Erste Tour</translation>
    </message>
    <message>
        <source>Last tour</source>
        <translation>Letzte Tour</translation>
    </message>
</context>
<context>
    <name>TourColumns</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Elevation Gain (%1)</source>
        <translation>Höhenmeter (%1)</translation>
    </message>
    <message>
        <source>Average Speed</source>
        <translation>Ø Tempo</translation>
    </message>
    <message>
        <source>Max Speed</source>
        <translation>Max. Tempo</translation>
    </message>
    <message>
        <source>Average Pulse</source>
        <translation>Ø Puls</translation>
    </message>
    <message>
        <source>Max Pulse</source>
        <translation>Max. Puls</translation>
    </message>
    <message>
        <source>Moving Speed</source>
        <translation>Tempo in Fahrt</translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation>Anstiege</translation>
    </message>
    <message>
        <source>Max Grade (%)</source>
        <translation>Max. Steigung (%)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Leistung (W)</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatur (°C)</translation>
    </message>
</context>
<context>
    <name>TourExport</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>das ist eine Verknüpfung, die ins Leere führt</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>die Datei gibt es schon</translation>
    </message>
    <message>
        <source>it holds tours, which an export would replace</source>
        <translation>die Datei enthält Touren, und ein Export würde sie ersetzen</translation>
    </message>
</context>
<context>
    <name>TourPage</name>
    <message>
        <source>it holds tours, which a page would replace</source>
        <translation>die Datei enthält Touren, und eine Seite würde sie ersetzen</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>die Seite lässt sich nicht zeichnen</translation>
    </message>
    <message>
        <source>%1 was not printed: %2.</source>
        <translation>%1 wurde nicht gedruckt: %2.</translation>
    </message>
    <message>
        <source>The printer %1 does not take the page.</source>
        <translation>Der Drucker %1 nimmt die Seite nicht an.</translation>
    </message>
</context>
<context>
    <name>TourReport</name>
    <message>
        <source>The tour has no samples.</source>
        <translation>Die Tour hat keine Messpunkte.</translation>
    </message>
    <message>
        <source>This tour is removed from its document.</source>
        <translation>Diese Tour ist aus ihrem Dokument entfernt.</translation>
    </message>
</context>
<context>
    <name>TourSummary</name>
    <message>
        <source>Tour</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Climbing</source>
        <translation>Bergauf</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Bergab</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Average while moving</source>
        <translation>Durchschnitt in Fahrt</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Höchstwert</translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation>Höhenmeter (%1)</translation>
    </message>
    <message>
        <source>Altitude at the end (%1)</source>
        <translation>Höhe am Ende (%1)</translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation>Anstiege</translation>
    </message>
    <message>
        <source>Longest climb</source>
        <translation>Längster Anstieg</translation>
    </message>
    <message>
        <source>Average climb</source>
        <translation>Mittlerer Anstieg</translation>
    </message>
    <message>
        <source>Average grade</source>
        <translation>Mittlere Steigung</translation>
    </message>
    <message>
        <source>Steepest grade</source>
        <translation>Größte Steigung</translation>
    </message>
    <message>
        <source>Steepest angle</source>
        <translation>Steilster Winkel</translation>
    </message>
    <message>
        <source>Descents</source>
        <translation>Abfahrten</translation>
    </message>
    <message>
        <source>Longest descent</source>
        <translation>Längste Abfahrt</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Tiefstwert</translation>
    </message>
</context>
<context>
    <name>TypedStreamReader</name>
    <message>
        <source>reference to an entry of another kind</source>
        <translation>Verweis auf einen Eintrag anderer Art</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>archives of more than 1 GiB are not read</source>
        <translation>Archive von mehr als 1 GiB werden nicht gelesen</translation>
    </message>
    <message>
        <source>no typed stream</source>
        <translation>kein typisierter Strom</translation>
    </message>
    <message>
        <source>typed stream of unknown version %1</source>
        <translation>typisierter Strom der unbekannten Version %1</translation>
    </message>
    <message>
        <source>what it holds takes more than %1 MiB of memory</source>
        <translation>der Inhalt braucht mehr als %1 MiB Speicher</translation>
    </message>
    <message>
        <source>%1 bytes wanted, %2 left</source>
        <translation>%1 Bytes erwartet, %2 übrig</translation>
    </message>
    <message>
        <source>an integer expected, not the mark 0x%1</source>
        <translation>eine ganze Zahl erwartet, nicht die Marke 0x%1</translation>
    </message>
    <message>
        <source>the integer %1 does not fit its type</source>
        <translation>die ganze Zahl %1 passt nicht zu ihrem Typ</translation>
    </message>
    <message>
        <source>negative length %1</source>
        <translation>negative Länge %1</translation>
    </message>
    <message>
        <source>reference to an entry that is not there</source>
        <translation>Verweis auf einen Eintrag, den es nicht gibt</translation>
    </message>
    <message>
        <source>a text expected</source>
        <translation>ein Text erwartet</translation>
    </message>
    <message>
        <source>a chain of more than 64 classes</source>
        <translation>eine Kette von mehr als 64 Klassen</translation>
    </message>
    <message>
        <source>no class name</source>
        <translation>kein Klassenname</translation>
    </message>
    <message>
        <source>more than 65,536 classes</source>
        <translation>mehr als 65.536 Klassen</translation>
    </message>
    <message>
        <source>no type string of values that can be read</source>
        <translation>keine Typangabe lesbarer Werte</translation>
    </message>
    <message>
        <source>the end of an object that was not begun</source>
        <translation>das Ende eines Objekts, das nicht begonnen wurde</translation>
    </message>
    <message>
        <source>an object without a class</source>
        <translation>ein Objekt ohne Klasse</translation>
    </message>
    <message>
        <source>objects nested more than 200 deep</source>
        <translation>mehr als 200-fach verschachtelte Objekte</translation>
    </message>
    <message>
        <source>an object that contains itself</source>
        <translation>ein Objekt, das sich selbst enthält</translation>
    </message>
    <message>
        <source>an object expected</source>
        <translation>ein Objekt erwartet</translation>
    </message>
    <message>
        <source>a value expected</source>
        <translation>ein Wert erwartet</translation>
    </message>
    <message>
        <source>references to the same objects over and over again</source>
        <translation>immer wieder Verweise auf dieselben Objekte</translation>
    </message>
    <message>
        <source>an integer expected</source>
        <translation>eine ganze Zahl erwartet</translation>
    </message>
    <message>
        <source>bytes expected</source>
        <translation>Bytes erwartet</translation>
    </message>
    <message>
        <source>a C string expected</source>
        <translation>eine C-Zeichenkette erwartet</translation>
    </message>
    <message>
        <source>a data block of %1 bytes that says %2</source>
        <translation>ein Datenblock von %1 Bytes, der %2 angibt</translation>
    </message>
    <message>
        <source>%1 elements do not fit into %2 bytes</source>
        <translation>%1 Elemente passen nicht in %2 Bytes</translation>
    </message>
    <message>
        <source>the list ends after %1 of %2 elements</source>
        <translation>die Liste endet nach %1 von %2 Elementen</translation>
    </message>
    <message>
        <source>a data block of %1 bytes expected</source>
        <translation>ein Datenblock von %1 Bytes erwartet</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>nothing can be written in its folder: %1</source>
        <translation>im Ordner der Datei lässt sich nichts schreiben: %1</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>die Datei gibt es schon</translation>
    </message>
    <message>
        <source>no file can have this name</source>
        <translation>keine Datei kann so heißen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>das ist eine Verknüpfung, die ins Leere führt</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Keeps the tours of a cycle computer.</source>
        <translation>Bewahrt die Touren eines Fahrradcomputers auf.</translation>
    </message>
    <message>
        <source>What of the log is written: none, errors or trace.</source>
        <translation>Was protokolliert wird: none, errors oder trace.</translation>
    </message>
    <message>
        <source>Starts with the simulated device plugged in.</source>
        <translation>Startet mit angeschlossenem simuliertem Gerät.</translation>
    </message>
    <message>
        <source>Where newer versions are looked for.</source>
        <translation>Wo nach neueren Versionen gesucht wird.</translation>
    </message>
    <message>
        <source>Documents to open and raw dumps to import.</source>
        <translation>Dokumente zum Öffnen und Rohdaten zum Importieren.</translation>
    </message>
</context>
<context>
    <name>ridelog::AltitudeRange</name>
    <message>
        <source>&amp;Altitudes from</source>
        <translation>Höhen &amp;von</translation>
    </message>
    <message>
        <source>Lowest altitude of the chart</source>
        <translation>Unterste Höhe des Diagramms</translation>
    </message>
    <message>
        <source>Highest altitude of the chart</source>
        <translation>Oberste Höhe des Diagramms</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>“%1” is no altitude. Write a number, like 850.</source>
        <translation>„%1“ ist keine Höhe. Geben Sie eine Zahl wie 850 ein.</translation>
    </message>
    <message>
        <source>“%1” is out of range. It has to be between %2 and %3 %4.</source>
        <translation>„%1“ liegt außerhalb des Bereichs. Erlaubt sind %2 bis %3 %4.</translation>
    </message>
</context>
<context>
    <name>ridelog::ApplicationWindows</name>
    <message>
        <source>a document without a name</source>
        <translation>ein unbenanntes Dokument</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept aside: %1</source>
        <translation>Nicht gespeicherte Änderungen lassen sich nicht aufbewahren: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document as it was on %1, with %Ln tour(s), was kept.</source>
        <comment>date</comment>
        <translation>
            <numerusform>Das Dokument mit Stand vom %1 (%Ln Tour) wurde aufbewahrt.</numerusform>
            <numerusform>Das Dokument mit Stand vom %1 (%Ln Touren) wurde aufbewahrt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Meanwhile %1.</source>
        <translation>Inzwischen %1.</translation>
    </message>
    <message>
        <source>ridelog ended before %1 was saved.</source>
        <translation>ridelog wurde beendet, bevor %1 gespeichert war.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Ask Me &amp;Later</source>
        <translation>&amp;Später fragen</translation>
    </message>
    <message>
        <source>What ridelog kept of %1 could not be recovered.</source>
        <translation>Die aufbewahrten Änderungen (%1) ließen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>%1

It is in %2, and stays there until it is discarded.</source>
        <translation>%1

Sie liegen in %2 und bleiben dort, bis sie verworfen werden.</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>What was kept of %1 was not discarded.</source>
        <translation>Die aufbewahrten Änderungen (%1) wurden nicht verworfen.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation>Touren (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 ließ sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>The download address “%1” could not be opened in a browser.</source>
        <translation>Die Adresse „%1“ zum Herunterladen ließ sich in keinem Browser öffnen.</translation>
    </message>
    <message>
        <source>Newer versions could not be looked for: %1</source>
        <translation>Nach neueren Versionen konnte nicht gesucht werden: %1</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>Suche nach neueren Versionen…</translation>
    </message>
</context>
<context>
    <name>ridelog::BarChartView</name>
    <message>
        <source>Bar chart</source>
        <translation>Balkendiagramm</translation>
    </message>
</context>
<context>
    <name>ridelog::ChartArrayView</name>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
</context>
<context>
    <name>ridelog::ConnectView</name>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Fortschritt der Übertragung</translation>
    </message>
    <message>
        <source>Press Connect, wait for the line above to say that it is waiting, and then start sending from the device&apos;s own menu. A transfer takes about 85 seconds.</source>
        <translation>Drücken Sie „Verbinden“, warten Sie, bis in der Zeile darüber „Warten auf das Gerät…“ steht, und starten Sie dann das Senden im Menü des Geräts. Eine Übertragung dauert etwa 85 Sekunden.</translation>
    </message>
    <message>
        <source>Serial &amp;port:</source>
        <translation>Serielle &amp;Schnittstelle:</translation>
    </message>
    <message>
        <source>Simulated device (%1)</source>
        <translation>Simuliertes Gerät (%1)</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>Keine Schnittstelle gefunden</translation>
    </message>
    <message>
        <source>Trou&amp;ble with the Port…</source>
        <translation>&amp;Probleme mit der Schnittstelle…</translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionEdit</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionLoader</name>
    <message>
        <source>the server answers %1 %2</source>
        <translation>der Server antwortet %1 %2</translation>
    </message>
    <message>
        <source>this build of ridelog has no address to look for updates at</source>
        <translation>diese Ausgabe von ridelog kennt keine Adresse, um nach Updates zu suchen</translation>
    </message>
    <message>
        <source>not an address of the web (http, https) or of a file</source>
        <translation>keine Adresse im Web (http, https) und keine einer Datei</translation>
    </message>
    <message>
        <source>larger than %1 MiB</source>
        <translation>größer als %1 MiB</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>es dauerte länger als %1 s</translation>
    </message>
</context>
<context>
    <name>ridelog::EmptyDocumentView</name>
    <message>
        <source>No tours yet</source>
        <translation>Noch keine Touren</translation>
    </message>
    <message>
        <source>Take them from your cycle computer, or import a raw dump of its memory. You can also drop a dump on this window.</source>
        <translation>Holen Sie sie von Ihrem Fahrradcomputer, oder importieren Sie die Rohdaten seines Speichers. Eine Rohdaten-Datei lässt sich auch auf dieses Fenster ziehen.</translation>
    </message>
    <message>
        <source>Connect De&amp;vice</source>
        <translation>Ge&amp;rät verbinden</translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation>Rohdaten &amp;importieren…</translation>
    </message>
</context>
<context>
    <name>ridelog::ExportPanel</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Selected tours (%1)</source>
        <translation>Ausgewählte Touren (%1)</translation>
    </message>
    <message>
        <source>All tours (%1)</source>
        <translation>Alle Touren (%1)</translation>
    </message>
    <message>
        <source>&amp;Tours:</source>
        <translation>&amp;Touren:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>A&amp;uswählen…</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;All tours in one file</source>
        <translation>&amp;Alle Touren in eine Datei</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s), such as %1</source>
        <translation>
            <numerusform>%Ln Datei wie %1</numerusform>
            <numerusform>%Ln Dateien wie %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>%1 ersetzen?</translation>
    </message>
    <message numerus="yes">
        <source>Replace %Ln file(s)?</source>
        <translation>
            <numerusform>%Ln Datei ersetzen?</numerusform>
            <numerusform>%Ln Dateien ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>It is in %1 already. What it holds is lost then.</source>
        <translation>Die Datei gibt es in %1 schon. Ihr Inhalt geht dann verloren.</translation>
    </message>
    <message>
        <source>In %1 there are already %2. What they hold is lost then.</source>
        <translation>In %1 gibt es schon %2. Der Inhalt dieser Dateien geht dann verloren.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Another export is under way. Try again when it has ended.</source>
        <translation>Ein anderer Export läuft noch. Versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>Export cancelled: nothing was written.</source>
        <translation>Export abgebrochen: Es wurde nichts geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>Export cancelled: %1 of %Ln file(s) were written.</source>
        <translation>
            <numerusform>Export abgebrochen: %1 von %Ln Datei geschrieben.</numerusform>
            <numerusform>Export abgebrochen: %1 von %Ln Dateien geschrieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported as %1.</source>
        <comment>name of a file</comment>
        <translation>
            <numerusform>%Ln Tour als %1 exportiert.</numerusform>
            <numerusform>%Ln Touren als %1 exportiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported to %1.</source>
        <comment>name of a folder</comment>
        <translation>
            <numerusform>%Ln Tour nach %1 exportiert.</numerusform>
            <numerusform>%Ln Touren nach %1 exportiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) were written.</source>
        <translation>
            <numerusform>%Ln Datei wurde geschrieben.</numerusform>
            <numerusform>%Ln Dateien wurden geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be written: %1</source>
        <comment>list of files and reasons</comment>
        <translation>
            <numerusform>%Ln Datei ließ sich nicht schreiben: %1</numerusform>
            <numerusform>%Ln Dateien ließen sich nicht schreiben: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Reports (*.%1)</source>
        <translation>Berichte (*.%1)</translation>
    </message>
    <message>
        <source>Hel&amp;p</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>ridelog::ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Exported tours</source>
        <translation>Exportierte Touren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln tour(s)</source>
        <comment>number of tours done</comment>
        <translation>
            <numerusform>%1 von %Ln Tour</numerusform>
            <numerusform>%1 von %Ln Touren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::FolderField</name>
    <message>
        <source>Say in which folder.</source>
        <translation>Geben Sie einen Ordner an.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>You may not write in %1.</source>
        <translation>In %1 dürfen Sie nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>ridelog::MainWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation>Rohdaten &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Re&amp;move Tour</source>
        <translation>Tour ent&amp;fernen</translation>
    </message>
    <message>
        <source>Re&amp;store Tour</source>
        <translation>Tour wiederhers&amp;tellen</translation>
    </message>
    <message>
        <source>S&amp;how Removed Tours</source>
        <translation>Entfernte Touren &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Un&amp;its</source>
        <translation>Ein&amp;heiten</translation>
    </message>
    <message>
        <source>&amp;Miles, mph and Feet</source>
        <translation>&amp;Meilen, mph und Fuß</translation>
    </message>
    <message>
        <source>&amp;Kilometres, km/h and Metres</source>
        <translation>&amp;Kilometer, km/h und Meter</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Tour</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Open Tour</source>
        <translation>Tour öffnen</translation>
    </message>
    <message>
        <source>Edit &amp;Title</source>
        <translation>Titel &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>Connect &amp;Drawer</source>
        <translation>Geräte&amp;leiste</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>&amp;Start Transfer</source>
        <translation>Übertragung &amp;starten</translation>
    </message>
    <message>
        <source>S&amp;top Transfer</source>
        <translation>Übertragung &amp;anhalten</translation>
    </message>
    <message>
        <source>Simulated De&amp;vice</source>
        <translation>Simuliertes &amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Statistik</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>Nach &amp;Updates suchen…</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Rückmeldung senden…</translation>
    </message>
    <message>
        <source>&amp;About ridelog</source>
        <translation>Ü&amp;ber ridelog</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>No Documents Yet</source>
        <translation>Noch keine Dokumente</translation>
    </message>
    <message>
        <source>There is no simulated device: %1</source>
        <translation>Es gibt kein simuliertes Gerät: %1</translation>
    </message>
    <message>
        <source>The simulated device is plugged in. Press Connect to take its tours.</source>
        <translation>Das simulierte Gerät ist angeschlossen. Drücken Sie „Verbinden“, um seine Touren zu holen.</translation>
    </message>
    <message>
        <source>No mail program could be started. Write to %1.</source>
        <translation>Es ließ sich kein Mailprogramm starten. Schreiben Sie an %1.</translation>
    </message>
    <message>
        <source>About ridelog</source>
        <translation>Über ridelog</translation>
    </message>
    <message>
        <source>&lt;b&gt;ridelog %1&lt;/b&gt;&lt;br&gt;Keeps the tours of a cycle computer for a lifetime.&lt;br&gt;&lt;br&gt;Free software under the MIT licence.</source>
        <translation>&lt;b&gt;ridelog %1&lt;/b&gt;&lt;br&gt;Bewahrt die Touren eines Fahrradcomputers ein Leben lang auf.&lt;br&gt;&lt;br&gt;Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>The document can only be read: %1</source>
        <translation>Das Dokument kann nur gelesen werden: %1</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Strecke:</translation>
    </message>
    <message>
        <source>Average speed:</source>
        <translation>Durchschnittstempo:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln Tour</numerusform>
            <numerusform>%Ln Touren</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Touren</translation>
    </message>
    <message>
        <source>There are no tours in this period.</source>
        <translation>In diesem Zeitraum gibt es keine Touren.</translation>
    </message>
    <message>
        <source>Import Dump</source>
        <translation>Rohdaten importieren</translation>
    </message>
    <message>
        <source>%1 was not imported: %2</source>
        <translation>%1 wurde nicht importiert: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln tour(s) added, %2 already there.</source>
        <comment>file, number of tours</comment>
        <translation>
            <numerusform>%1: %Ln Tour hinzugefügt, %2 schon vorhanden.</numerusform>
            <numerusform>%1: %Ln Touren hinzugefügt, %2 schon vorhanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The document can only be read (%1). Save it under another name.</source>
        <translation>Das Dokument kann nur gelesen werden (%1). Speichern Sie es unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation>%1 wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Another program has changed %1 since you opened it.</source>
        <translation>Ein anderes Programm hat %1 geändert, seit Sie es geöffnet haben.</translation>
    </message>
    <message>
        <source>If you overwrite it, what the other program wrote is lost.</source>
        <translation>Wenn Sie es überschreiben, geht verloren, was das andere Programm geschrieben hat.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation>Touren (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Als %1 gespeichert.</translation>
    </message>
    <message>
        <source>Go back to what %1 holds?</source>
        <translation>%1 auf den gespeicherten Stand zurücksetzen?</translation>
    </message>
    <message>
        <source>All changes since it was saved are lost, and cannot be brought back.</source>
        <translation>Alle Änderungen seit dem Speichern gehen verloren und lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>The document was not reverted: it has changed since you were asked.</source>
        <translation>Das Dokument wurde nicht zurückgesetzt: Es hat sich seit der Frage geändert.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>%1 ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>The document is as it was saved.</source>
        <translation>Das Dokument ist auf dem gespeicherten Stand.</translation>
    </message>
    <message>
        <source>A transfer from the device is under way.</source>
        <translation>Eine Übertragung vom Gerät läuft.</translation>
    </message>
    <message>
        <source>If you close the window now, it ends before the tours have arrived.</source>
        <translation>Wenn Sie das Fenster jetzt schließen, endet sie, bevor die Touren angekommen sind.</translation>
    </message>
    <message>
        <source>&amp;Stop Transfer</source>
        <translation>Übertragung &amp;anhalten</translation>
    </message>
    <message>
        <source>Save the changes of %1 before it is closed?</source>
        <translation>Änderungen an %1 vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>They are lost if you do not save them.</source>
        <translation>Sonst gehen sie verloren.</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) removed.</source>
        <translation>
            <numerusform>%Ln Tour entfernt.</numerusform>
            <numerusform>%Ln Touren entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is removed stays in the document: see Edit &gt; Show Removed Tours.</source>
        <translation>Was entfernt ist, bleibt im Dokument: siehe Bearbeiten &gt; Entfernte Touren zeigen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) restored.</source>
        <translation>
            <numerusform>%Ln Tour wiederhergestellt.</numerusform>
            <numerusform>%Ln Touren wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message>
        <source>; what arrived is in %1</source>
        <translation>; was ankam, ist in %1</translation>
    </message>
    <message>
        <source>; what arrived could not be kept in %1: %2</source>
        <translation>; was ankam, ließ sich nicht in %1 aufbewahren: %2</translation>
    </message>
    <message>
        <source>Dis&amp;connect</source>
        <translation>Tr&amp;ennen</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>Disconnected.</source>
        <translation>Getrennt.</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>Warten auf das Gerät…</translation>
    </message>
    <message>
        <source>There is no serial port. Plug in the device&apos;s cable, or choose Device &gt; Simulated Device.</source>
        <translation>Es gibt keine serielle Schnittstelle. Stecken Sie das Kabel des Geräts ein, oder wählen Sie Gerät &gt; Simuliertes Gerät.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>Transfer %1.</source>
        <translation>Übertragung %1.</translation>
    </message>
    <message>
        <source>Receiving…</source>
        <translation>Wird empfangen…</translation>
    </message>
    <message>
        <source>Receiving, %1 %</source>
        <translation>Wird empfangen, %1 %</translation>
    </message>
    <message numerus="yes">
        <source>Receiving, %1 %, %Ln second(s) left</source>
        <comment>percentage</comment>
        <translation>
            <numerusform>Wird empfangen, %1 %, noch %Ln Sekunde</numerusform>
            <numerusform>Wird empfangen, %1 %, noch %Ln Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>What arrived</source>
        <translation>Das Empfangene</translation>
    </message>
    <message>
        <source>Broken off: %1.</source>
        <translation>Abgebrochen: %1.</translation>
    </message>
    <message>
        <source>%1 is no dump of the device: %2</source>
        <translation>%1 besteht nicht aus Rohdaten des Geräts: %2</translation>
    </message>
    <message numerus="yes">
        <source>Finished: %Ln tour(s) added, %1 already there</source>
        <comment>number of tours</comment>
        <translation>
            <numerusform>Fertig: %Ln Tour hinzugefügt, %1 schon vorhanden</numerusform>
            <numerusform>Fertig: %Ln Touren hinzugefügt, %1 schon vorhanden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::ManualPage</name>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
</context>
<context>
    <name>ridelog::ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Larger Letters</source>
        <translation>&amp;Größere Schrift</translation>
    </message>
    <message>
        <source>&amp;Smaller Letters</source>
        <translation>&amp;Kleinere Schrift</translation>
    </message>
    <message>
        <source>&amp;Usual Letters</source>
        <translation>&amp;Normale Schrift</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>“%1” is not on this page.</source>
        <translation>„%1“ steht nicht auf dieser Seite.</translation>
    </message>
</context>
<context>
    <name>ridelog::MyDocument</name>
    <message numerus="yes">
        <source>adding %n tours</source>
        <translation>
            <numerusform>%n Tour hinzufügen</numerusform>
            <numerusform>%n Touren hinzufügen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::PreferenceAwareFormatter</name>
    <message>
        <source>Couldn not convert  to float</source>
        <translation>Das ist keine Zahl</translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>&amp;Diagramm</translation>
    </message>
    <message>
        <source>&amp;Pulse</source>
        <translation>&amp;Puls</translation>
    </message>
    <message>
        <source>De&amp;vice</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>What you choose lasts until ridelog ends: %1 cannot be written.</source>
        <translation>Was Sie wählen, gilt nur, bis ridelog endet: %1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Kilometres, km/h and metres</source>
        <translation>Kilometer, km/h und Meter</translation>
    </message>
    <message>
        <source>Miles, mph and feet</source>
        <translation>Meilen, mph und Fuß</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>&amp;Einheiten:</translation>
    </message>
    <message>
        <source>Transfers:</source>
        <translation>Übertragungen:</translation>
    </message>
    <message>
        <source>&amp;Save the raw dump that arrives</source>
        <translation>Empfangene &amp;Rohdaten speichern</translation>
    </message>
    <message>
        <source>As odoData.odo in your home folder.</source>
        <translation>Als odoData.odo im persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Newer versions:</source>
        <translation>Neuere Versionen:</translation>
    </message>
    <message>
        <source>Look for them &amp;automatically</source>
        <translation>A&amp;utomatisch danach suchen</translation>
    </message>
    <message>
        <source>Days between two looks for newer versions</source>
        <translation>Tage zwischen zwei Suchen nach neueren Versionen</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>Abs&amp;tand:</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Counts from the next start on.</source>
        <translation>Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Al&amp;titude:</source>
        <translation>H&amp;öhe:</translation>
    </message>
    <message>
        <source>Colour of the Altitude</source>
        <translation>Farbe der Höhe</translation>
    </message>
    <message>
        <source>&amp;Speed:</source>
        <translation>&amp;Tempo:</translation>
    </message>
    <message>
        <source>Colour of the Speed</source>
        <translation>Farbe des Tempos</translation>
    </message>
    <message>
        <source>P&amp;ulse:</source>
        <translation>P&amp;uls:</translation>
    </message>
    <message>
        <source>Colour of the Pulse</source>
        <translation>Farbe des Pulses</translation>
    </message>
    <message>
        <source>&amp;Below the pulse range:</source>
        <translation>U&amp;nter dem Pulsbereich:</translation>
    </message>
    <message>
        <source>Colour below the Pulse Range</source>
        <translation>Farbe unter dem Pulsbereich</translation>
    </message>
    <message>
        <source>&amp;Within the pulse range:</source>
        <translation>&amp;Im Pulsbereich:</translation>
    </message>
    <message>
        <source>Colour within the Pulse Range</source>
        <translation>Farbe im Pulsbereich</translation>
    </message>
    <message>
        <source>Ab&amp;ove the pulse range:</source>
        <translation>Ü&amp;ber dem Pulsbereich:</translation>
    </message>
    <message>
        <source>Colour above the Pulse Range</source>
        <translation>Farbe über dem Pulsbereich</translation>
    </message>
    <message>
        <source>&amp;Reset Colours</source>
        <translation>Farben &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Speed has an a&amp;xis of its own beside another series</source>
        <translation>T&amp;empo hat neben einer anderen Kurve eine eigene Achse</translation>
    </message>
    <message>
        <source>Lowest pulse of the range</source>
        <translation>Unterster Puls des Bereichs</translation>
    </message>
    <message>
        <source>Highest pulse of the range</source>
        <translation>Oberster Puls des Bereichs</translation>
    </message>
    <message>
        <source>&amp;to</source>
        <translation>&amp;bis</translation>
    </message>
    <message>
        <source>beats per minute</source>
        <translation>Schläge pro Minute</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>Be&amp;reich:</translation>
    </message>
    <message>
        <source>Zones:</source>
        <translation>Zonen:</translation>
    </message>
    <message>
        <source>Draw them &amp;behind the pulse</source>
        <translation>Hinter dem Puls &amp;zeichnen</translation>
    </message>
    <message>
        <source>&amp;Fade those outside the range</source>
        <translation>Außerhalb des Bereichs mit Ver&amp;lauf</translation>
    </message>
    <message>
        <source>Serial line:</source>
        <translation>Serielle Schnittstelle:</translation>
    </message>
    <message>
        <source>&amp;Alternate transfer settings (two stop bits)</source>
        <translation>And&amp;ere Übertragungseinstellungen (zwei Stoppbits)</translation>
    </message>
    <message>
        <source>Try them when what arrives is no dump of the device. They count from the next transfer on.</source>
        <translation>Probieren Sie diese aus, wenn das Empfangene nicht aus Rohdaten des Geräts besteht. Sie gelten ab der nächsten Übertragung.</translation>
    </message>
    <message numerus="yes">
        <source> day(s)</source>
        <comment>after the number</comment>
        <translation>
            <numerusform> Tag</numerusform>
            <numerusform> Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesPage</name>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation>Standard &amp;wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ridelog::SaveChartPanel</name>
    <message>
        <source>it holds tours, which a picture would replace</source>
        <translation>die Datei enthält Touren, und ein Bild würde sie ersetzen</translation>
    </message>
    <message>
        <source>%1 was not saved: %2.</source>
        <translation>%1 wurde nicht gespeichert: %2.</translation>
    </message>
    <message>
        <source>The chart was saved as %1.</source>
        <translation>Das Diagramm wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>Save Chart</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>&amp;Use as default size</source>
        <translation>Als Standard&amp;größe verwenden</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
</context>
<context>
    <name>ridelog::StartWindow</name>
    <message>
        <source>ridelog</source>
        <translation>ridelog</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Zuletzt geöffnete Dokumente</translation>
    </message>
    <message>
        <source>&amp;Recent documents:</source>
        <translation>&amp;Zuletzt geöffnete Dokumente:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Import Dump…</source>
        <translation>Rohdaten importieren…</translation>
    </message>
</context>
<context>
    <name>ridelog::StatValuesView</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
</context>
<context>
    <name>ridelog::StatWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation>D&amp;iagramm speichern…</translation>
    </message>
    <message>
        <source>Save &amp;Report…</source>
        <translation>Be&amp;richt speichern…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation>Werte &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Previous Year</source>
        <translation>&amp;Voriges Jahr</translation>
    </message>
    <message>
        <source>&amp;Next Year</source>
        <translation>&amp;Nächstes Jahr</translation>
    </message>
    <message>
        <source>P&amp;revious Month</source>
        <translation>Voriger &amp;Monat</translation>
    </message>
    <message>
        <source>Ne&amp;xt Month</source>
        <translation>Nächster M&amp;onat</translation>
    </message>
    <message>
        <source>Pre&amp;vious Week</source>
        <translation>Vorige &amp;Woche</translation>
    </message>
    <message>
        <source>Next &amp;Week</source>
        <translation>Nächste Wo&amp;che</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>&amp;Date…</source>
        <translation>&amp;Datum…</translation>
    </message>
    <message>
        <source>The statistics are copied.</source>
        <translation>Die Statistik wurde kopiert.</translation>
    </message>
    <message>
        <source>Statistics – %1</source>
        <translation>Statistik – %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation>Diagramm speichern…</translation>
    </message>
    <message>
        <source>This window goes from the year %1 to the year %2.</source>
        <translation>Dieses Fenster reicht vom Jahr %1 bis zum Jahr %2.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>ridelog::TourSummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
</context>
<context>
    <name>ridelog::TourTableView</name>
    <message>
        <source>Tours</source>
        <translation>Touren</translation>
    </message>
    <message>
        <source>&amp;Reverse Order</source>
        <translation>&amp;Umgekehrte Reihenfolge</translation>
    </message>
</context>
<context>
    <name>ridelog::TourWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation>D&amp;iagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Samples</source>
        <translation>Messpunkte &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy Su&amp;mmary</source>
        <translation>Ü&amp;bersicht kopieren</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Lin&amp;k…</source>
        <translation>L&amp;ink…</translation>
    </message>
    <message>
        <source>&amp;Open Link</source>
        <translation>Link &amp;öffnen</translation>
    </message>
    <message>
        <source>Here is no link to a page or a mail address that could be opened.</source>
        <translation>Hier ist kein Link zu einer Seite oder E-Mail-Adresse, der sich öffnen ließe.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Manual Range of Altitudes</source>
        <translation>&amp;Fester Höhenbereich</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Daten</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Ü&amp;bersicht</translation>
    </message>
    <message>
        <source>Horizontal axis</source>
        <translation>Waagrechte Achse</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation>Diagramm speichern…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messpunkte</translation>
    </message>
    <message>
        <source>yyyy/MM/dd - HH:mm</source>
        <translation>dd.MM.yyyy, HH:mm</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Address of the page that the selected words lead to, empty for none:</source>
        <translation>Adresse der Seite, zu der die ausgewählten Wörter führen; leer für keine:</translation>
    </message>
    <message>
        <source>No samples are selected.</source>
        <translation>Keine Messpunkte ausgewählt.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s) copied.</source>
        <translation>
            <numerusform>%Ln Messpunkt kopiert.</numerusform>
            <numerusform>%Ln Messpunkte kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The summary is copied.</source>
        <translation>Die Übersicht wurde kopiert.</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>ridelog::UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>ridelog::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
</context>
<context>
    <name>ridelog::XMLUpdater</name>
    <message>
        <source>it names no application</source>
        <translation>die Beschreibung nennt keine Anwendung</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>die Beschreibung nennt keine Version</translation>
    </message>
    <message>
        <source>New version found</source>
        <translation>Neue Version gefunden</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>No new version found</source>
        <translation>Keine neue Version gefunden</translation>
    </message>
    <message>
        <source>No new version available.</source>
        <translation>Keine neue Version verfügbar.</translation>
    </message>
    <message>
        <source>it declares entities or attributes of its own</source>
        <translation>die Beschreibung vereinbart eigene Entitäten oder Attribute</translation>
    </message>
    <message>
        <source>it has too many attributes</source>
        <translation>die Beschreibung hat zu viele Attribute</translation>
    </message>
    <message>
        <source>its encoding is not UTF-8 or UTF-16</source>
        <translation>die Beschreibung ist weder in UTF-8 noch in UTF-16 kodiert</translation>
    </message>
    <message>
        <source>not well-formed XML, line %1: %2</source>
        <translation>kein wohlgeformtes XML, Zeile %1: %2</translation>
    </message>
    <message>
        <source>the entity %1 is not declared</source>
        <translation>die Entität %1 ist nicht vereinbart</translation>
    </message>
</context>
</TS>
