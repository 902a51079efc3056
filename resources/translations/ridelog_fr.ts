<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AppController</name>
    <message>
        <source>changes that are not saved are kept in this folder, and nothing else</source>
        <translation>ce dossier garde les modifications non enregistrées, et rien d&apos;autre</translation>
    </message>
</context>
<context>
    <name>ChartPicture</name>
    <message>
        <source>there is not enough memory for a picture of this size</source>
        <translation>la mémoire ne suffit pas pour une image de cette taille</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>l&apos;image ne peut pas être codée</translation>
    </message>
    <message>
        <source>a picture is at least one unit wide and high</source>
        <translation>une image a au moins une unité de large et de haut</translation>
    </message>
    <message>
        <source>pictures end with .%1</source>
        <translation>les images se terminent par .%1</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>another program has it open</source>
        <translation>un autre programme l&apos;a ouvert</translation>
    </message>
    <message>
        <source>%1 has it open (process %2 on %3)</source>
        <translation>%1 l&apos;a ouvert (processus %2 sur %3)</translation>
    </message>
    <message>
        <source>it is too large: %1 bytes, at most %2 are read</source>
        <translation>il est trop grand&#xa0;: %1 octets, %2 au plus sont lus</translation>
    </message>
    <message>
        <source>no backup can be kept: %1</source>
        <translation>aucune copie de secours ne peut être gardée&#xa0;: %1</translation>
    </message>
    <message>
        <source>another program has changed it meanwhile</source>
        <translation>un autre programme l&apos;a modifié entre-temps</translation>
    </message>
</context>
<context>
    <name>DocumentRecovery</name>
    <message>
        <source>its file is gone</source>
        <translation>son fichier a disparu</translation>
    </message>
    <message>
        <source>its file has been changed since</source>
        <translation>son fichier a été modifié</translation>
    </message>
    <message>
        <source>another program has taken it meanwhile</source>
        <translation>un autre programme l&apos;a pris entre-temps</translation>
    </message>
    <message>
        <source>the document is open and has changes that are not saved</source>
        <translation>le document est ouvert et a des modifications non enregistrées</translation>
    </message>
    <message>
        <source>%1: folders cannot be locked there</source>
        <translation>%1&#xa0;: les dossiers ne peuvent pas y être verrouillés</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>%1 ne peut pas être supprimé</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>Activity for devices and services (FIT)</source>
        <translation>Activité pour appareils et services (FIT)</translation>
    </message>
    <message>
        <source>FIT knows no dates before %1, and the tour starts at %2</source>
        <translation>FIT ne connaît pas de dates avant %1, et la sortie commence le %2</translation>
    </message>
    <message>
        <source>FIT knows no dates after %1, and the tour ends at %2</source>
        <translation>FIT ne connaît pas de dates après %1, et la sortie finit le %2</translation>
    </message>
    <message>
        <source>Report for the browser (HTML)</source>
        <translation>Rapport pour le navigateur (HTML)</translation>
    </message>
    <message>
        <source>All values, for programs (JSON)</source>
        <translation>Toutes les valeurs, pour programmes (JSON)</translation>
    </message>
    <message>
        <source>All samples as a table (CSV)</source>
        <translation>Toutes les mesures en tableau (CSV)</translation>
    </message>
    <message>
        <source>A table of the tours, a line for each (CSV)</source>
        <translation>Tableau des sorties, une ligne chacune (CSV)</translation>
    </message>
    <message>
        <source>Training Center (TCX)</source>
        <translation>Training Center (TCX)</translation>
    </message>
    <message>
        <source>it can tell of the years 1 to 9999 only, and a tour has the date %1</source>
        <translation>ce format ne connaît que les années 1 à 9999, et une sortie est du %1</translation>
    </message>
</context>
<context>
    <name>HtmlPage</name>
    <message>
        <source>en</source>
        <comment>code of the language that all this is translated to</comment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>MenuEntries</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&quot;%1&quot; is no list</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une liste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no dictionary</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un dictionnaire</translation>
    </message>
    <message>
        <source>an archive, but not of a tour library</source>
        <translation>une archive, mais pas d&apos;une collection de sorties</translation>
    </message>
    <message>
        <source>not a tour library: &quot;%1&quot; is missing</source>
        <translation>pas une collection de sorties&#xa0;: «&#xa0;%1&#xa0;» manque</translation>
    </message>
    <message>
        <source>not a readable document: %1</source>
        <translation>pas un document lisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>the document has no file yet</source>
        <translation>le document n&apos;a pas encore de fichier</translation>
    </message>
    <message>
        <source>it was opened for reading only</source>
        <translation>il a été ouvert en lecture seule</translation>
    </message>
</context>
<context>
    <name>OdoData</name>
    <message>
        <source>it is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, a dump has no more than %2</source>
        <translation>pas des données brutes&#xa0;: %1 octets, elles en ont au plus %2</translation>
    </message>
    <message>
        <source>not a raw dump: %1 bytes, at least %2 are needed</source>
        <translation>pas des données brutes&#xa0;: %1 octets, il en faut au moins %2</translation>
    </message>
    <message>
        <source>not a raw dump: it does not begin with &quot;%1&quot;</source>
        <translation>pas des données brutes&#xa0;: le début n&apos;est pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not a raw dump: no record and no hexadecimal digits at byte %1</source>
        <translation>pas des données brutes&#xa0;: ni enregistrement ni chiffres hexadécimaux à l&apos;octet %1</translation>
    </message>
</context>
<context>
    <name>OdoTour</name>
    <message>
        <source>date changed</source>
        <translation>modifier la date</translation>
    </message>
    <message>
        <source>change title</source>
        <translation>modifier le titre</translation>
    </message>
    <message>
        <source>change description</source>
        <translation>modifier la description</translation>
    </message>
    <message>
        <source>tour removed</source>
        <translation>supprimer la sortie</translation>
    </message>
    <message>
        <source>a start value of a tour is no whole number of 32 bits</source>
        <translation>une valeur de départ d&apos;une sortie n&apos;est pas un entier de 32 bits</translation>
    </message>
    <message>
        <source>a tour is missing</source>
        <translation>une sortie manque</translation>
    </message>
    <message>
        <source>a tour is stored in version %1, which this program does not know</source>
        <translation>une sortie est enregistrée en version %1, que ce programme ne connaît pas</translation>
    </message>
    <message>
        <source>the recording of a tour is missing or damaged</source>
        <translation>l&apos;enregistrement d&apos;une sortie manque ou est endommagé</translation>
    </message>
    <message>
        <source>the title of a tour is missing or damaged</source>
        <translation>le titre d&apos;une sortie manque ou est endommagé</translation>
    </message>
    <message>
        <source>the description of a tour is missing or damaged</source>
        <translation>la description d&apos;une sortie manque ou est endommagée</translation>
    </message>
    <message>
        <source>the removed mark of a tour is missing or damaged</source>
        <translation>la marque «&#xa0;supprimée&#xa0;» d&apos;une sortie manque ou est endommagée</translation>
    </message>
    <message>
        <source>the start of a tour is missing or damaged</source>
        <translation>le départ d&apos;une sortie manque ou est endommagé</translation>
    </message>
    <message>
        <source>the byte order of a tour is missing or damaged</source>
        <translation>l&apos;ordre des octets d&apos;une sortie manque ou est endommagé</translation>
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
        <translation>Semaine %1, %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Tours</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Removed tours are not counted.</source>
        <translation>Les sorties supprimées ne sont pas comptées.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation>Dénivelé positif (%1)</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Vitesse maximale</translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation>Pouls moyen</translation>
    </message>
    <message>
        <source>(removed)</source>
        <translation>(supprimée)</translation>
    </message>
    <message>
        <source>Back to the list of tours</source>
        <translation>Retour à la liste des sorties</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln sortie</numerusform>
            <numerusform>%Ln sorties</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PortProblem</name>
    <message>
        <source>permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>permission denied. Add yourself to the group %1 (sudo usermod -aG %1 $USER), then log out and in again</source>
        <translation>accès refusé. Ajoutez-vous au groupe %1 (sudo usermod -aG %1 $USER), puis fermez la session et ouvrez-la de nouveau</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 octets sur %2</translation>
    </message>
    <message>
        <source>a folder, not a serial port</source>
        <translation>un dossier, pas un port série</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>pas un port série</translation>
    </message>
    <message>
        <source>there is no such port</source>
        <translation>ce port n&apos;existe pas</translation>
    </message>
    <message>
        <source>in use by another program</source>
        <translation>un autre programme l&apos;utilise</translation>
    </message>
    <message>
        <source>a transfer from it is under way</source>
        <translation>un transfert de ce port est en cours</translation>
    </message>
    <message>
        <source>the port does not answer</source>
        <translation>le port ne répond pas</translation>
    </message>
    <message>
        <source>the port cannot be set to 9,600 bit/s</source>
        <translation>le port ne peut pas être réglé sur 9&#xa0;600 bit/s</translation>
    </message>
    <message>
        <source>the port was closed or unplugged before anything arrived</source>
        <translation>le port a été fermé ou débranché avant que rien n&apos;arrive</translation>
    </message>
    <message>
        <source>the port was closed or unplugged after %1</source>
        <translation>le port a été fermé ou débranché après %1</translation>
    </message>
    <message>
        <source>stopped before anything arrived</source>
        <translation>arrêté avant que rien n&apos;arrive</translation>
    </message>
    <message>
        <source>stopped after %1</source>
        <translation>arrêté après %1</translation>
    </message>
    <message>
        <source>nothing arrived within %1 s</source>
        <translation>rien n&apos;est arrivé en %1 s</translation>
    </message>
    <message>
        <source>the device fell silent after %1: nothing for %2 s</source>
        <translation>l&apos;appareil s&apos;est tu après %1&#xa0;: rien pendant %2 s</translation>
    </message>
</context>
<context>
    <name>ReadoutHtml</name>
    <message>
        <source>Point at the chart, or use the arrow keys in it, to see the values there.</source>
        <translation>Pointez le graphique, ou utilisez-y les flèches du clavier, pour voir les valeurs.</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Altitude (%1)</source>
        <translation>Altitude (%1)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pouls</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Puissance (W)</translation>
    </message>
    <message>
        <source>Grade (%)</source>
        <translation>Pente (%)</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Température (°C)</translation>
    </message>
    <message>
        <source>Cadence</source>
        <translation>Cadence</translation>
    </message>
</context>
<context>
    <name>SeriesSvg</name>
    <message>
        <source>Chart over %1: %2</source>
        <comment>x quantity, series</comment>
        <translation>Graphique selon %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StatBars</name>
    <message>
        <source>No tours</source>
        <translation>Aucune sortie</translation>
    </message>
    <message>
        <source>Statistics %1 %2</source>
        <comment>period and quantity</comment>
        <translation>Statistiques %1 %2</translation>
    </message>
</context>
<context>
    <name>StatQuantity</name>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Elevation Gain</source>
        <translation>Dénivelé positif</translation>
    </message>
    <message>
        <source>Heart Beats</source>
        <translation>Battements</translation>
    </message>
</context>
<context>
    <name>StatValues</name>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Elevation gain</source>
        <translation>Dénivelé positif</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Vitesse maximale</translation>
    </message>
    <message>
        <source>Average pulse</source>
        <translation>Pouls moyen</translation>
    </message>
    <message>
        <source>Highest pulse</source>
        <translation>Pouls maximal</translation>
    </message>
    <message>
        <source>Heart beats</source>
        <translation>Battements</translation>
    </message>
    <message>
        <source>Average grade uphill</source>
        <translation>Pente moyenne en montée</translation>
    </message>
    <message>
        <source>Average grade downhill</source>
        <translation>Pente moyenne en descente</translation>
    </message>
    <message>
        <source>First tour</source>
        <translation>Première sortie</translation>
    </message>
    <message>
        <source>Last tour</source>
        <translation>Dernière sortie</translation>
    </message>
</context>
<context>
    <name>TourColumns</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Elevation Gain (%1)</source>
        <translation>Dénivelé (%1)</translation>
    </message>
    <message>
        <source>Average Speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Max Speed</source>
        <translation>Vitesse maxi</translation>
    </message>
    <message>
        <source>Average Pulse</source>
        <translation>Pouls moyen</translation>
    </message>
    <message>
        <source>Max Pulse</source>
        <translation>Pouls maxi</translation>
    </message>
    <message>
        <source>Moving Speed</source>
        <translation>Vitesse en roulant</translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation>Montées</translation>
    </message>
    <message>
        <source>Max Grade (%)</source>
        <translation>Pente max. (%)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Puissance (W)</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Température (°C)</translation>
    </message>
</context>
<context>
    <name>TourExport</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>c&apos;est un lien qui ne mène nulle part</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>il existe déjà</translation>
    </message>
    <message>
        <source>it holds tours, which an export would replace</source>
        <translation>il contient des sorties, qu&apos;une exportation remplacerait</translation>
    </message>
</context>
<context>
    <name>TourPage</name>
    <message>
        <source>it holds tours, which a page would replace</source>
        <translation>il contient des sorties, qu&apos;une page remplacerait</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la page ne peut pas être dessinée</translation>
    </message>
    <message>
        <source>%1 was not printed: %2.</source>
        <translation>%1 n&apos;a pas été imprimé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The printer %1 does not take the page.</source>
        <translation>L&apos;imprimante %1 ne prend pas la page.</translation>
    </message>
</context>
<context>
    <name>TourReport</name>
    <message>
        <source>The tour has no samples.</source>
        <translation>La sortie n&apos;a pas de mesures.</translation>
    </message>
    <message>
        <source>This tour is removed from its document.</source>
        <translation>Cette sortie est supprimée de son document.</translation>
    </message>
</context>
<context>
    <name>TourSummary</name>
    <message>
        <source>Tour</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Climbing</source>
        <translation>En montée</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>En descente</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pouls</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Average while moving</source>
        <translation>Moyenne en roulant</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Elevation gain (%1)</source>
        <translation>Dénivelé positif (%1)</translation>
    </message>
    <message>
        <source>Altitude at the end (%1)</source>
        <translation>Altitude à la fin (%1)</translation>
    </message>
    <message>
        <source>Climbs</source>
        <translation>Montées</translation>
    </message>
    <message>
        <source>Longest climb</source>
        <translation>Plus longue montée</translation>
    </message>
    <message>
        <source>Average climb</source>
        <translation>Montée moyenne</translation>
    </message>
    <message>
        <source>Average grade</source>
        <translation>Pente moyenne</translation>
    </message>
    <message>
        <source>Steepest grade</source>
        <translation>Pente la plus raide</translation>
    </message>
    <message>
        <source>Steepest angle</source>
        <translation>Angle le plus raide</translation>
    </message>
    <message>
        <source>Descents</source>
        <translation>Descentes</translation>
    </message>
    <message>
        <source>Longest descent</source>
        <translation>Plus longue descente</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Minimum</translation>
    </message>
</context>
<context>
    <name>TypedStreamReader</name>
    <message>
        <source>reference to an entry of another kind</source>
        <translation>référence à une entrée d&apos;un autre genre</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 à l&apos;octet %2</translation>
    </message>
    <message>
        <source>archives of more than 1 GiB are not read</source>
        <translation>les archives de plus de 1 Gio ne sont pas lues</translation>
    </message>
    <message>
        <source>no typed stream</source>
        <translation>pas un flux typé</translation>
    </message>
    <message>
        <source>typed stream of unknown version %1</source>
        <translation>flux typé de version inconnue %1</translation>
    </message>
    <message>
        <source>what it holds takes more than %1 MiB of memory</source>
        <translation>le contenu demande plus de %1 Mio de mémoire</translation>
    </message>
    <message>
        <source>%1 bytes wanted, %2 left</source>
        <translation>%1 octets attendus, %2 restants</translation>
    </message>
    <message>
        <source>an integer expected, not the mark 0x%1</source>
        <translation>un entier attendu, pas la marque 0x%1</translation>
    </message>
    <message>
        <source>the integer %1 does not fit its type</source>
        <translation>l&apos;entier %1 ne tient pas dans son type</translation>
    </message>
    <message>
        <source>negative length %1</source>
        <translation>longueur négative %1</translation>
    </message>
    <message>
        <source>reference to an entry that is not there</source>
        <translation>référence à une entrée qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>a text expected</source>
        <translation>un texte attendu</translation>
    </message>
    <message>
        <source>a chain of more than 64 classes</source>
        <translation>une chaîne de plus de 64 classes</translation>
    </message>
    <message>
        <source>no class name</source>
        <translation>pas de nom de classe</translation>
    </message>
    <message>
        <source>more than 65,536 classes</source>
        <translation>plus de 65&#xa0;536 classes</translation>
    </message>
    <message>
        <source>no type string of values that can be read</source>
        <translation>pas de description de type de valeurs lisibles</translation>
    </message>
    <message>
        <source>the end of an object that was not begun</source>
        <translation>la fin d&apos;un objet qui n&apos;a pas commencé</translation>
    </message>
    <message>
        <source>an object without a class</source>
        <translation>un objet sans classe</translation>
    </message>
    <message>
        <source>objects nested more than 200 deep</source>
        <translation>plus de 200 objets imbriqués</translation>
    </message>
    <message>
        <source>an object that contains itself</source>
        <translation>un objet qui se contient lui-même</translation>
    </message>
    <message>
        <source>an object expected</source>
        <translation>un objet attendu</translation>
    </message>
    <message>
        <source>a value expected</source>
        <translation>une valeur attendue</translation>
    </message>
    <message>
        <source>references to the same objects over and over again</source>
        <translation>des références aux mêmes objets sans cesse répétées</translation>
    </message>
    <message>
        <source>an integer expected</source>
        <translation>un entier attendu</translation>
    </message>
    <message>
        <source>bytes expected</source>
        <translation>des octets attendus</translation>
    </message>
    <message>
        <source>a C string expected</source>
        <translation>une chaîne C attendue</translation>
    </message>
    <message>
        <source>a data block of %1 bytes that says %2</source>
        <translation>un bloc de données de %1 octets qui en annonce %2</translation>
    </message>
    <message>
        <source>%1 elements do not fit into %2 bytes</source>
        <translation>%1 éléments ne tiennent pas dans %2 octets</translation>
    </message>
    <message>
        <source>the list ends after %1 of %2 elements</source>
        <translation>la liste finit après %1 éléments sur %2</translation>
    </message>
    <message>
        <source>a data block of %1 bytes expected</source>
        <translation>un bloc de données de %1 octets attendu</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>nothing can be written in its folder: %1</source>
        <translation>rien ne peut être écrit dans son dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>il existe déjà</translation>
    </message>
    <message>
        <source>no file can have this name</source>
        <translation>aucun fichier ne peut porter ce nom</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>c&apos;est un lien qui ne mène nulle part</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Keeps the tours of a cycle computer.</source>
        <translation>Garde les sorties d&apos;un compteur de vélo.</translation>
    </message>
    <message>
        <source>What of the log is written: none, errors or trace.</source>
        <translation>Ce qui est écrit du journal&#xa0;: none, errors ou trace.</translation>
    </message>
    <message>
        <source>Starts with the simulated device plugged in.</source>
        <translation>Démarre avec l&apos;appareil simulé branché.</translation>
    </message>
    <message>
        <source>Where newer versions are looked for.</source>
        <translation>Où les versions plus récentes sont cherchées.</translation>
    </message>
    <message>
        <source>Documents to open and raw dumps to import.</source>
        <translation>Documents à ouvrir et données brutes à importer.</translation>
    </message>
</context>
<context>
    <name>ridelog::AltitudeRange</name>
    <message>
        <source>&amp;Altitudes from</source>
        <translation>Alt&amp;itudes de</translation>
    </message>
    <message>
        <source>Lowest altitude of the chart</source>
        <translation>Altitude la plus basse du graphique</translation>
    </message>
    <message>
        <source>Highest altitude of the chart</source>
        <translation>Altitude la plus haute du graphique</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>“%1” is no altitude. Write a number, like 850.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une altitude. Écrivez un nombre, comme 850.</translation>
    </message>
    <message>
        <source>“%1” is out of range. It has to be between %2 and %3 %4.</source>
        <translation>«&#xa0;%1&#xa0;» est hors limites. Il faut une valeur entre %2 et %3 %4.</translation>
    </message>
</context>
<context>
    <name>ridelog::ApplicationWindows</name>
    <message>
        <source>a document without a name</source>
        <translation>un document sans nom</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept aside: %1</source>
        <translation>Les modifications non enregistrées ne peuvent pas être mises de côté&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document as it was on %1, with %Ln tour(s), was kept.</source>
        <comment>date</comment>
        <translation>
            <numerusform>Le document tel qu&apos;il était le %1, avec %Ln sortie, a été gardé.</numerusform>
            <numerusform>Le document tel qu&apos;il était le %1, avec %Ln sorties, a été gardé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Meanwhile %1.</source>
        <translation>Entre-temps, %1.</translation>
    </message>
    <message>
        <source>ridelog ended before %1 was saved.</source>
        <translation>ridelog s&apos;est arrêté avant que %1 soit enregistré.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Ask Me &amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>What ridelog kept of %1 could not be recovered.</source>
        <translation>Ce que ridelog a gardé de %1 n&apos;a pas pu être récupéré.</translation>
    </message>
    <message>
        <source>%1

It is in %2, and stays there until it is discarded.</source>
        <translation>%1

C&apos;est dans %2, et y reste jusqu&apos;à ce que ce soit abandonné.</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>What was kept of %1 was not discarded.</source>
        <translation>Ce qui a été gardé de %1 n&apos;a pas été abandonné.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation>Sorties (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 n&apos;a pas pu être ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>The download address “%1” could not be opened in a browser.</source>
        <translation>L&apos;adresse de téléchargement «&#xa0;%1&#xa0;» n&apos;a pas pu être ouverte dans un navigateur.</translation>
    </message>
    <message>
        <source>Newer versions could not be looked for: %1</source>
        <translation>Les versions plus récentes n&apos;ont pas pu être cherchées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>Recherche de versions plus récentes…</translation>
    </message>
</context>
<context>
    <name>ridelog::BarChartView</name>
    <message>
        <source>Bar chart</source>
        <translation>Graphique à barres</translation>
    </message>
</context>
<context>
    <name>ridelog::ChartArrayView</name>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
</context>
<context>
    <name>ridelog::ConnectView</name>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Progression du transfert</translation>
    </message>
    <message>
        <source>Press Connect, wait for the line above to say that it is waiting, and then start sending from the device&apos;s own menu. A transfer takes about 85 seconds.</source>
        <translation>Appuyez sur Connecter, attendez que la ligne ci-dessus dise qu&apos;elle attend, puis lancez l&apos;envoi depuis le menu de l&apos;appareil. Un transfert dure environ 85 secondes.</translation>
    </message>
    <message>
        <source>Serial &amp;port:</source>
        <translation>&amp;Port série&#xa0;:</translation>
    </message>
    <message>
        <source>Simulated device (%1)</source>
        <translation>Appareil simulé (%1)</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>Aucun port série trouvé</translation>
    </message>
    <message>
        <source>Trou&amp;ble with the Port…</source>
        <translation>Pro&amp;blèmes de port…</translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionEdit</name>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
</context>
<context>
    <name>ridelog::DescriptionLoader</name>
    <message>
        <source>the server answers %1 %2</source>
        <translation>le serveur répond %1 %2</translation>
    </message>
    <message>
        <source>this build of ridelog has no address to look for updates at</source>
        <translation>cette version de ridelog n&apos;a pas d&apos;adresse où chercher des mises à jour</translation>
    </message>
    <message>
        <source>not an address of the web (http, https) or of a file</source>
        <translation>ni une adresse du web (http, https) ni celle d&apos;un fichier</translation>
    </message>
    <message>
        <source>larger than %1 MiB</source>
        <translation>plus grand que %1 Mio</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>cela a duré plus de %1 s</translation>
    </message>
</context>
<context>
    <name>ridelog::EmptyDocumentView</name>
    <message>
        <source>No tours yet</source>
        <translation>Pas encore de sorties</translation>
    </message>
    <message>
        <source>Take them from your cycle computer, or import a raw dump of its memory. You can also drop a dump on this window.</source>
        <translation>Prenez-les de votre compteur de vélo, ou importez les données brutes de sa mémoire. Vous pouvez aussi déposer un fichier sur cette fenêtre.</translation>
    </message>
    <message>
        <source>Connect De&amp;vice</source>
        <translation>Connecter l&apos;appa&amp;reil</translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation>&amp;Importer des données…</translation>
    </message>
</context>
<context>
    <name>ridelog::ExportPanel</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Selected tours (%1)</source>
        <translation>Sorties choisies (%1)</translation>
    </message>
    <message>
        <source>All tours (%1)</source>
        <translation>Toutes les sorties (%1)</translation>
    </message>
    <message>
        <source>&amp;Tours:</source>
        <translation>&amp;Sorties&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>Doss&amp;ier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;All tours in one file</source>
        <translation>&amp;Toutes les sorties en un fichier</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s), such as %1</source>
        <translation>
            <numerusform>%Ln fichier, comme %1</numerusform>
            <numerusform>%Ln fichiers, comme %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>Remplacer %1&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>Replace %Ln file(s)?</source>
        <translation>
            <numerusform>Remplacer %Ln fichier&#xa0;?</numerusform>
            <numerusform>Remplacer %Ln fichiers&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>It is in %1 already. What it holds is lost then.</source>
        <translation>Il est déjà dans %1. Son contenu sera perdu.</translation>
    </message>
    <message>
        <source>In %1 there are already %2. What they hold is lost then.</source>
        <translation>Dans %1 il y a déjà %2. Leur contenu sera perdu.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Another export is under way. Try again when it has ended.</source>
        <translation>Une autre exportation est en cours. Réessayez quand elle sera finie.</translation>
    </message>
    <message>
        <source>Export cancelled: nothing was written.</source>
        <translation>Exportation annulée&#xa0;: rien n&apos;a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>Export cancelled: %1 of %Ln file(s) were written.</source>
        <translation>
            <numerusform>Exportation annulée&#xa0;: %1 fichier sur %Ln a été écrit.</numerusform>
            <numerusform>Exportation annulée&#xa0;: %1 fichiers sur %Ln ont été écrits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported as %1.</source>
        <comment>name of a file</comment>
        <translation>
            <numerusform>%Ln sortie exportée&#xa0;: %1.</numerusform>
            <numerusform>%Ln sorties exportées&#xa0;: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported to %1.</source>
        <comment>name of a folder</comment>
        <translation>
            <numerusform>%Ln sortie exportée dans %1.</numerusform>
            <numerusform>%Ln sorties exportées dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) were written.</source>
        <translation>
            <numerusform>%Ln fichier a été écrit.</numerusform>
            <numerusform>%Ln fichiers ont été écrits.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be written: %1</source>
        <comment>list of files and reasons</comment>
        <translation>
            <numerusform>%Ln fichier n&apos;a pas pu être écrit&#xa0;: %1</numerusform>
            <numerusform>%Ln fichiers n&apos;ont pas pu être écrits&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Reports (*.%1)</source>
        <translation>Rapports (*.%1)</translation>
    </message>
    <message>
        <source>Hel&amp;p</source>
        <translation>Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>ridelog::ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Exported tours</source>
        <translation>Sorties exportées</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln tour(s)</source>
        <comment>number of tours done</comment>
        <translation>
            <numerusform>%1 sur %Ln sortie</numerusform>
            <numerusform>%1 sur %Ln sorties</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::FolderField</name>
    <message>
        <source>Say in which folder.</source>
        <translation>Indiquez un dossier.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>You may not write in %1.</source>
        <translation>Vous ne pouvez pas écrire dans %1.</translation>
    </message>
</context>
<context>
    <name>ridelog::MainWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Documents &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Import Dump…</source>
        <translation>&amp;Importer des données…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Enregi&amp;strer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer so&amp;us…</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>I&amp;mprimer…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Re&amp;move Tour</source>
        <translation>&amp;Supprimer la sortie</translation>
    </message>
    <message>
        <source>Re&amp;store Tour</source>
        <translation>R&amp;estaurer la sortie</translation>
    </message>
    <message>
        <source>S&amp;how Removed Tours</source>
        <translation>&amp;Voir les supprimées</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>C&amp;hercher</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Un&amp;its</source>
        <translation>&amp;Unités</translation>
    </message>
    <message>
        <source>&amp;Miles, mph and Feet</source>
        <translation>&amp;Milles, mph et pieds</translation>
    </message>
    <message>
        <source>&amp;Kilometres, km/h and Metres</source>
        <translation>&amp;Kilomètres, km/h et mètres</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation>Tr&amp;ier par</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Sortie</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open Tour</source>
        <translation>Ouvrir la sortie</translation>
    </message>
    <message>
        <source>Edit &amp;Title</source>
        <translation>Modifier le &amp;titre</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Appareil</translation>
    </message>
    <message>
        <source>Connect &amp;Drawer</source>
        <translation>&amp;Volet de l&apos;appareil</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>&amp;Start Transfer</source>
        <translation>&amp;Lancer le transfert</translation>
    </message>
    <message>
        <source>S&amp;top Transfer</source>
        <translation>&amp;Arrêter le transfert</translation>
    </message>
    <message>
        <source>Simulated De&amp;vice</source>
        <translation>Appareil si&amp;mulé</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>S&amp;tatistiques</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Chercher des mises à jour…</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Envoyer un avis…</translation>
    </message>
    <message>
        <source>&amp;About ridelog</source>
        <translation>À &amp;propos de ridelog</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>No Documents Yet</source>
        <translation>Pas encore de documents</translation>
    </message>
    <message>
        <source>There is no simulated device: %1</source>
        <translation>Il n&apos;y a pas d&apos;appareil simulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The simulated device is plugged in. Press Connect to take its tours.</source>
        <translation>L&apos;appareil simulé est branché. Appuyez sur Connecter pour prendre ses sorties.</translation>
    </message>
    <message>
        <source>No mail program could be started. Write to %1.</source>
        <translation>Aucun programme de messagerie n&apos;a pu démarrer. Écrivez à %1.</translation>
    </message>
    <message>
        <source>About ridelog</source>
        <translation>À propos de ridelog</translation>
    </message>
    <message>
        <source>&lt;b&gt;ridelog %1&lt;/b&gt;&lt;br&gt;Keeps the tours of a cycle computer for a lifetime.&lt;br&gt;&lt;br&gt;Free software under the MIT licence.</source>
        <translation>&lt;b&gt;ridelog %1&lt;/b&gt;&lt;br&gt;Garde les sorties d&apos;un compteur de vélo pour toute une vie.&lt;br&gt;&lt;br&gt;Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>The document can only be read: %1</source>
        <translation>Le document ne peut être que lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Distance&#xa0;:</translation>
    </message>
    <message>
        <source>Average speed:</source>
        <translation>Vitesse moyenne&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln sortie</numerusform>
            <numerusform>%Ln sorties</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sans nom %1</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>There are no tours in this period.</source>
        <translation>Il n&apos;y a pas de sorties dans cette période.</translation>
    </message>
    <message>
        <source>Import Dump</source>
        <translation>Importer des données brutes</translation>
    </message>
    <message>
        <source>%1 was not imported: %2</source>
        <translation>%1 n&apos;a pas été importé&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln tour(s) added, %2 already there.</source>
        <comment>file, number of tours</comment>
        <translation>
            <numerusform>%1&#xa0;: %Ln sortie ajoutée, %2 déjà là.</numerusform>
            <numerusform>%1&#xa0;: %Ln sorties ajoutées, %2 déjà là.</numerusform>
        </translation>
    </message>
    <message>
        <source>The document can only be read (%1). Save it under another name.</source>
        <translation>Le document ne peut être que lu (%1). Enregistrez-le sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation>%1 n&apos;a pas été enregistré.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>Another program has changed %1 since you opened it.</source>
        <translation>Un autre programme a modifié %1 depuis que vous l&apos;avez ouvert.</translation>
    </message>
    <message>
        <source>If you overwrite it, what the other program wrote is lost.</source>
        <translation>Si vous l&apos;écrasez, ce que l&apos;autre programme a écrit est perdu.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Tours (*.%1)</source>
        <translation>Sorties (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré comme %1.</translation>
    </message>
    <message>
        <source>Go back to what %1 holds?</source>
        <translation>Revenir à ce que contient %1&#xa0;?</translation>
    </message>
    <message>
        <source>All changes since it was saved are lost, and cannot be brought back.</source>
        <translation>Toutes les modifications depuis l&apos;enregistrement sont perdues, et ne peuvent pas être retrouvées.</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>The document was not reverted: it has changed since you were asked.</source>
        <translation>Le document n&apos;a pas été rétabli&#xa0;: il a changé depuis la question.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>%1 n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>The document is as it was saved.</source>
        <translation>Le document est tel qu&apos;il a été enregistré.</translation>
    </message>
    <message>
        <source>A transfer from the device is under way.</source>
        <translation>Un transfert de l&apos;appareil est en cours.</translation>
    </message>
    <message>
        <source>If you close the window now, it ends before the tours have arrived.</source>
        <translation>Si vous fermez la fenêtre maintenant, il s&apos;arrête avant que les sorties soient arrivées.</translation>
    </message>
    <message>
        <source>&amp;Stop Transfer</source>
        <translation>&amp;Arrêter le transfert</translation>
    </message>
    <message>
        <source>Save the changes of %1 before it is closed?</source>
        <translation>Enregistrer les modifications de %1 avant de le fermer&#xa0;?</translation>
    </message>
    <message>
        <source>They are lost if you do not save them.</source>
        <translation>Sinon elles sont perdues.</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) removed.</source>
        <translation>
            <numerusform>%Ln sortie supprimée.</numerusform>
            <numerusform>%Ln sorties supprimées.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is removed stays in the document: see Edit &gt; Show Removed Tours.</source>
        <translation>Ce qui est supprimé reste dans le document&#xa0;: voir Édition &gt; Voir les supprimées.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) restored.</source>
        <translation>
            <numerusform>%Ln sortie restaurée.</numerusform>
            <numerusform>%Ln sorties restaurées.</numerusform>
        </translation>
    </message>
    <message>
        <source>; what arrived is in %1</source>
        <translation>&#xa0;; ce qui est arrivé est dans %1</translation>
    </message>
    <message>
        <source>; what arrived could not be kept in %1: %2</source>
        <translation>&#xa0;; ce qui est arrivé n&apos;a pas pu être gardé dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Dis&amp;connect</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>Disconnected.</source>
        <translation>Déconnecté.</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>En attente de l&apos;appareil…</translation>
    </message>
    <message>
        <source>There is no serial port. Plug in the device&apos;s cable, or choose Device &gt; Simulated Device.</source>
        <translation>Il n&apos;y a pas de port série. Branchez le câble de l&apos;appareil, ou choisissez Appareil &gt; Appareil simulé.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 ne peut pas être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Transfer %1.</source>
        <translation>Transfert %1.</translation>
    </message>
    <message>
        <source>Receiving…</source>
        <translation>Réception…</translation>
    </message>
    <message>
        <source>Receiving, %1 %</source>
        <translation>Réception, %1 %</translation>
    </message>
    <message numerus="yes">
        <source>Receiving, %1 %, %Ln second(s) left</source>
        <comment>percentage</comment>
        <translation>
            <numerusform>Réception, %1 %, encore %Ln seconde</numerusform>
            <numerusform>Réception, %1 %, encore %Ln secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>What arrived</source>
        <translation>Ce qui est arrivé</translation>
    </message>
    <message>
        <source>Broken off: %1.</source>
        <translation>Interrompu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is no dump of the device: %2</source>
        <translation>%1 n&apos;est pas des données brutes de l&apos;appareil&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>Finished: %Ln tour(s) added, %1 already there</source>
        <comment>number of tours</comment>
        <translation>
            <numerusform>Terminé&#xa0;: %Ln sortie ajoutée, %1 déjà là</numerusform>
            <numerusform>Terminé&#xa0;: %Ln sorties ajoutées, %1 déjà là</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::ManualPage</name>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
</context>
<context>
    <name>ridelog::ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>C&amp;hercher</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Chercher le &amp;suivant</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Chercher le &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Larger Letters</source>
        <translation>Lettres plus &amp;grandes</translation>
    </message>
    <message>
        <source>&amp;Smaller Letters</source>
        <translation>Lettres plus &amp;petites</translation>
    </message>
    <message>
        <source>&amp;Usual Letters</source>
        <translation>Lettres &amp;normales</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Chercher dans cette page</translation>
    </message>
    <message>
        <source>“%1” is not on this page.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas dans cette page.</translation>
    </message>
</context>
<context>
    <name>ridelog::MyDocument</name>
    <message numerus="yes">
        <source>adding %n tours</source>
        <translation>
            <numerusform>ajouter %n sortie</numerusform>
            <numerusform>ajouter %n sorties</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::PreferenceAwareFormatter</name>
    <message>
        <source>Couldn not convert  to float</source>
        <translation>Ce n&apos;est pas un nombre</translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>Grap&amp;hique</translation>
    </message>
    <message>
        <source>&amp;Pulse</source>
        <translation>&amp;Pouls</translation>
    </message>
    <message>
        <source>De&amp;vice</source>
        <translation>App&amp;areil</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>What you choose lasts until ridelog ends: %1 cannot be written.</source>
        <translation>Vos choix ne durent que jusqu&apos;à la fin de ridelog&#xa0;: %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Kilometres, km/h and metres</source>
        <translation>Kilomètres, km/h et mètres</translation>
    </message>
    <message>
        <source>Miles, mph and feet</source>
        <translation>Milles, mph et pieds</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>&amp;Unités&#xa0;:</translation>
    </message>
    <message>
        <source>Transfers:</source>
        <translation>Transferts&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Save the raw dump that arrives</source>
        <translation>Enregi&amp;strer les données brutes reçues</translation>
    </message>
    <message>
        <source>As odoData.odo in your home folder.</source>
        <translation>Dans odoData.odo de votre dossier personnel.</translation>
    </message>
    <message>
        <source>Newer versions:</source>
        <translation>Nouvelles versions&#xa0;:</translation>
    </message>
    <message>
        <source>Look for them &amp;automatically</source>
        <translation>Les &amp;chercher automatiquement</translation>
    </message>
    <message>
        <source>Days between two looks for newer versions</source>
        <translation>Jours entre deux recherches de nouvelles versions</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>&amp;Tous les&#xa0;:</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation>La&amp;ngue&#xa0;:</translation>
    </message>
    <message>
        <source>Counts from the next start on.</source>
        <translation>Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Al&amp;titude:</source>
        <translation>Al&amp;titude&#xa0;:</translation>
    </message>
    <message>
        <source>Colour of the Altitude</source>
        <translation>Couleur de l&apos;altitude</translation>
    </message>
    <message>
        <source>&amp;Speed:</source>
        <translation>&amp;Vitesse&#xa0;:</translation>
    </message>
    <message>
        <source>Colour of the Speed</source>
        <translation>Couleur de la vitesse</translation>
    </message>
    <message>
        <source>P&amp;ulse:</source>
        <translation>Po&amp;uls&#xa0;:</translation>
    </message>
    <message>
        <source>Colour of the Pulse</source>
        <translation>Couleur du pouls</translation>
    </message>
    <message>
        <source>&amp;Below the pulse range:</source>
        <translation>&amp;Sous la plage de pouls&#xa0;:</translation>
    </message>
    <message>
        <source>Colour below the Pulse Range</source>
        <translation>Couleur sous la plage de pouls</translation>
    </message>
    <message>
        <source>&amp;Within the pulse range:</source>
        <translation>Da&amp;ns la plage de pouls&#xa0;:</translation>
    </message>
    <message>
        <source>Colour within the Pulse Range</source>
        <translation>Couleur dans la plage de pouls</translation>
    </message>
    <message>
        <source>Ab&amp;ove the pulse range:</source>
        <translation>Au-d&amp;essus de la plage&#xa0;:</translation>
    </message>
    <message>
        <source>Colour above the Pulse Range</source>
        <translation>Couleur au-dessus de la plage de pouls</translation>
    </message>
    <message>
        <source>&amp;Reset Colours</source>
        <translation>&amp;Rétablir les couleurs</translation>
    </message>
    <message>
        <source>Speed has an a&amp;xis of its own beside another series</source>
        <translation>La vitesse a son a&amp;xe à côté d&apos;une autre série</translation>
    </message>
    <message>
        <source>Lowest pulse of the range</source>
        <translation>Pouls le plus bas de la plage</translation>
    </message>
    <message>
        <source>Highest pulse of the range</source>
        <translation>Pouls le plus haut de la plage</translation>
    </message>
    <message>
        <source>&amp;to</source>
        <translation>&amp;à</translation>
    </message>
    <message>
        <source>beats per minute</source>
        <translation>battements par minute</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>Plag&amp;e&#xa0;:</translation>
    </message>
    <message>
        <source>Zones:</source>
        <translation>Zones&#xa0;:</translation>
    </message>
    <message>
        <source>Draw them &amp;behind the pulse</source>
        <translation>Les dessiner derr&amp;ière le pouls</translation>
    </message>
    <message>
        <source>&amp;Fade those outside the range</source>
        <translation>Atténuer &amp;celles hors de la plage</translation>
    </message>
    <message>
        <source>Serial line:</source>
        <translation>Ligne série&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Alternate transfer settings (two stop bits)</source>
        <translation>Autres réglages (deux &amp;bits d&apos;arrêt)</translation>
    </message>
    <message>
        <source>Try them when what arrives is no dump of the device. They count from the next transfer on.</source>
        <translation>Essayez-les si ce qui arrive n&apos;est pas des données brutes de l&apos;appareil. Ils prennent effet au prochain transfert.</translation>
    </message>
    <message numerus="yes">
        <source> day(s)</source>
        <comment>after the number</comment>
        <translation>
            <numerusform> jour</numerusform>
            <numerusform> jours</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesPage</name>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation>Va&amp;leurs par défaut</translation>
    </message>
</context>
<context>
    <name>ridelog::SaveChartPanel</name>
    <message>
        <source>it holds tours, which a picture would replace</source>
        <translation>il contient des sorties, qu&apos;une image remplacerait</translation>
    </message>
    <message>
        <source>%1 was not saved: %2.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The chart was saved as %1.</source>
        <translation>Le graphique a été enregistré comme %1.</translation>
    </message>
    <message>
        <source>Save Chart</source>
        <translation>Enregistrer le graphique</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>&amp;Use as default size</source>
        <translation>&amp;Utiliser comme taille par défaut</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
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
        <translation>Documents récents</translation>
    </message>
    <message>
        <source>&amp;Recent documents:</source>
        <translation>Documents &amp;récents&#xa0;:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Import Dump…</source>
        <translation>Importer des données…</translation>
    </message>
</context>
<context>
    <name>ridelog::StatValuesView</name>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
</context>
<context>
    <name>ridelog::StatWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>Save &amp;Report…</source>
        <translation>Enregistrer le &amp;rapport…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation>&amp;Copier les valeurs</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Previous Year</source>
        <translation>Année &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next Year</source>
        <translation>Année &amp;suivante</translation>
    </message>
    <message>
        <source>P&amp;revious Month</source>
        <translation>Mois pré&amp;cédent</translation>
    </message>
    <message>
        <source>Ne&amp;xt Month</source>
        <translation>&amp;Mois suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious Week</source>
        <translation>Semaine précé&amp;dente</translation>
    </message>
    <message>
        <source>Next &amp;Week</source>
        <translation>Semaine sui&amp;vante</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>&amp;Date…</source>
        <translation>Da&amp;te…</translation>
    </message>
    <message>
        <source>The statistics are copied.</source>
        <translation>Les statistiques sont copiées.</translation>
    </message>
    <message>
        <source>Statistics – %1</source>
        <translation>Statistiques – %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation>Enregistrer le graphique…</translation>
    </message>
    <message>
        <source>This window goes from the year %1 to the year %2.</source>
        <translation>Cette fenêtre va de l&apos;année %1 à l&apos;année %2.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>ridelog::TourSummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
</context>
<context>
    <name>ridelog::TourTableView</name>
    <message>
        <source>Tours</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>&amp;Reverse Order</source>
        <translation>Ordre in&amp;verse</translation>
    </message>
</context>
<context>
    <name>ridelog::TourWindowController</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Enregi&amp;strer</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>Save C&amp;hart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>I&amp;mprimer…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Copy Samples</source>
        <translation>&amp;Copier les mesures</translation>
    </message>
    <message>
        <source>Copy Su&amp;mmary</source>
        <translation>Copier le résu&amp;mé</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Souligné</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Lin&amp;k…</source>
        <translation>Lie&amp;n…</translation>
    </message>
    <message>
        <source>&amp;Open Link</source>
        <translation>&amp;Ouvrir le lien</translation>
    </message>
    <message>
        <source>Here is no link to a page or a mail address that could be opened.</source>
        <translation>Il n&apos;y a pas ici de lien vers une page ou une adresse qui puisse être ouvert.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Manual Range of Altitudes</source>
        <translation>&amp;Plage d&apos;altitudes fixe</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Données</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>Horizontal axis</source>
        <translation>Axe horizontal</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Séries</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Save Chart…</source>
        <translation>Enregistrer le graphique…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>yyyy/MM/dd - HH:mm</source>
        <translation>dd/MM/yyyy - HH:mm</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Address of the page that the selected words lead to, empty for none:</source>
        <translation>Adresse de la page où mènent les mots choisis, vide pour aucune&#xa0;:</translation>
    </message>
    <message>
        <source>No samples are selected.</source>
        <translation>Aucune mesure n&apos;est sélectionnée.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s) copied.</source>
        <translation>
            <numerusform>%Ln mesure copiée.</numerusform>
            <numerusform>%Ln mesures copiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>The summary is copied.</source>
        <translation>Le résumé est copié.</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pouls</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>ridelog::UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Refaire&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refaire</translation>
    </message>
</context>
<context>
    <name>ridelog::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
</context>
<context>
    <name>ridelog::XMLUpdater</name>
    <message>
        <source>it names no application</source>
        <translation>elle ne nomme aucune application</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>elle ne nomme aucune version</translation>
    </message>
    <message>
        <source>New version found</source>
        <translation>Nouvelle version trouvée</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>No new version found</source>
        <translation>Aucune nouvelle version trouvée</translation>
    </message>
    <message>
        <source>No new version available.</source>
        <translation>Il n&apos;y a pas de nouvelle version.</translation>
    </message>
    <message>
        <source>it declares entities or attributes of its own</source>
        <translation>elle déclare des entités ou des attributs à elle</translation>
    </message>
    <message>
        <source>it has too many attributes</source>
        <translation>elle a trop d&apos;attributs</translation>
    </message>
    <message>
        <source>its encoding is not UTF-8 or UTF-16</source>
        <translation>son codage n&apos;est ni UTF-8 ni UTF-16</translation>
    </message>
    <message>
        <source>not well-formed XML, line %1: %2</source>
        <translation>XML mal formé, ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the entity %1 is not declared</source>
        <translation>l&apos;entité %1 n&apos;est pas déclarée</translation>
    </message>
</context>
</TS>
