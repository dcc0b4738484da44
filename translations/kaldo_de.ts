<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Details anzeigen...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Details ausblenden...</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>kaldo</name>
    <message>
        <source>Version %1 (%2)

Parentage allocation with uncollected parents, from microsatellite genotypes.

To cite: KALDO, version %1, with the run record of your results.

Free software under the GNU General Public License, version 3 or later.
Charts are drawn with QCustomPlot, windows with Qt.</source>
        <translation>Version %1 (%2)

Elternschaftszuordnung mit unbeprobten Eltern, aus Mikrosatelliten-Genotypen.

Zitieren Sie: KALDO, version %1, zusammen mit dem Laufprotokoll Ihrer Ergebnisse.

Freie Software unter der GNU General Public License, Version 3 oder später.
Die Diagramme zeichnet QCustomPlot, die Fenster Qt.</translation>
    </message>
    <message>
        <source>%1 is no whole number</source>
        <translation>%1 ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>&amp;Open the file</source>
        <translation>Datei ö&amp;ffnen</translation>
    </message>
    <message>
        <source>ALLOCATION : SEXED</source>
        <translation>ZUORDNUNG : MIT GESCHLECHT</translation>
    </message>
    <message>
        <source>ALLOCATION : NON-SEXED</source>
        <translation>ZUORDNUNG : OHNE GESCHLECHT</translation>
    </message>
    <message>
        <source>SIMULATIONS : SEXED</source>
        <translation>SIMULATIONEN : MIT GESCHLECHT</translation>
    </message>
    <message>
        <source>SIMULATIONS: NON-SEXED</source>
        <translation>SIMULATIONEN : OHNE GESCHLECHT</translation>
    </message>
    <message>
        <source>Cumulative Sequence</source>
        <translation>Kumulative Folge</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Cannot make the folder &quot;%1&quot;.</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;.</source>
        <translation>„%1“ lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>&quot;parents&quot; and &quot;offspring&quot;</source>
        <translation>„Eltern“ und „Nachkommen“</translation>
    </message>
    <message>
        <source>take the NON-SEXED flow</source>
        <translation>den Ablauf OHNE GESCHLECHT wählen</translation>
    </message>
    <message>
        <source>&quot;parents&quot;</source>
        <translation>„Eltern“</translation>
    </message>
    <message>
        <source>&quot;males&quot;</source>
        <translation>„Männchen“</translation>
    </message>
    <message>
        <source>&quot;females&quot;</source>
        <translation>„Weibchen“</translation>
    </message>
    <message>
        <source>&quot;offspring&quot;</source>
        <translation>„Nachkommen“</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>noch nicht gewählt</translation>
    </message>
    <message>
        <source>drop-individuals: leave such parents out</source>
        <translation>drop-individuals: solche Eltern weglassen</translation>
    </message>
    <message>
        <source>drop-loci: leave such loci out</source>
        <translation>drop-loci: solche Loci weglassen</translation>
    </message>
    <message>
        <source>least: leave out so that most genotypes stay</source>
        <translation>least: so weglassen, dass die meisten Genotypen bleiben</translation>
    </message>
    <message>
        <source>as recognised</source>
        <translation>wie erkannt</translation>
    </message>
    <message>
        <source>&amp;More choices</source>
        <translation>&amp;Mehr Auswahl</translation>
    </message>
    <message>
        <source>Show all that can be chosen for files of this format</source>
        <translation>Zeigt alles, was sich für Dateien dieses Formats wählen lässt</translation>
    </message>
    <message>
        <source>as the file looks</source>
        <translation>wie die Datei aussieht</translation>
    </message>
    <message numerus="yes">
        <source>%n individuals</source>
        <comment>%n individual</comment>
        <translation>
            <numerusform>%n Individuum</numerusform>
            <numerusform>%n Individuen</numerusform>
        </translation>
    </message>
    <message>
        <source>as its rows tell</source>
        <translation>wie es die Zeilen sagen</translation>
    </message>
    <message>
        <source>parents</source>
        <translation>Eltern</translation>
    </message>
    <message>
        <source>males</source>
        <translation>Männchen</translation>
    </message>
    <message>
        <source>females</source>
        <translation>Weibchen</translation>
    </message>
    <message>
        <source>offspring</source>
        <translation>Nachkommen</translation>
    </message>
    <message>
        <source>Who is in the file: parents, males, females or offspring alone, or both parents and offspring, told by a column, by populations or by the format itself.</source>
        <translation>Wer in der Datei steht: nur Eltern, Männchen, Weibchen oder Nachkommen, oder Eltern und Nachkommen, was dann eine Spalte, die Populationen oder das Format selbst sagen.</translation>
    </message>
    <message>
        <source>&amp;Add a file...</source>
        <translation>Datei &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>A further file of the same study, for instance that of the offspring</source>
        <translation>Eine weitere Datei derselben Studie, zum Beispiel die der Nachkommen</translation>
    </message>
    <message>
        <source>File to convert</source>
        <translation>Umzuwandelnde Datei</translation>
    </message>
    <message>
        <source>Who is in %1</source>
        <translation>Wer steht in %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Leave this file out; nothing happens to the file itself</source>
        <translation>Lässt diese Datei weg; mit der Datei selbst geschieht nichts</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>A further file</source>
        <translation>Eine weitere Datei</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>%1, %2; %3. Taken for that, since %4.</source>
        <translation>%1, %2; %3. Dafür gehalten, weil %4.</translation>
    </message>
    <message>
        <source>The files cannot be converted yet. What is to be settled stands in the list.</source>
        <translation>Die Dateien lassen sich noch nicht umwandeln. Was zu klären ist, steht in der Liste.</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>&amp;Schreiben nach</translation>
    </message>
    <message>
        <source>The folder for the converted files; it is made where it is not there.</source>
        <translation>Der Ordner für die umgewandelten Dateien; er wird angelegt, wenn es ihn nicht gibt.</translation>
    </message>
    <message>
        <source>This flow needs the sexes of all parents. Tell them by file (&quot;males&quot; and &quot;females&quot;) or by a column of sexes (&quot;More choices&quot;), or convert the files in the NON-SEXED flow.</source>
        <translation>Dieser Ablauf braucht das Geschlecht aller Eltern. Geben Sie es je Datei an („Männchen“ und „Weibchen“) oder durch eine Spalte der Geschlechter („Mehr Auswahl“), oder wandeln Sie die Dateien im Ablauf OHNE GESCHLECHT um.</translation>
    </message>
    <message>
        <source>The recorded run was started in the folder
%1
Use it as the working folder?</source>
        <translation>Der aufgezeichnete Lauf wurde in diesem Ordner gestartet:
%1
Als Arbeitsordner verwenden?</translation>
    </message>
    <message>
        <source>The study of the recorded run was moved to the folder
%1
Use it as the working folder?</source>
        <translation>Die Studie des aufgezeichneten Laufs liegt jetzt in diesem Ordner:
%1
Als Arbeitsordner verwenden?</translation>
    </message>
    <message>
        <source>The record was made by KALDO %1, this is KALDO %2.</source>
        <translation>Das Protokoll stammt von KALDO %1, dies ist KALDO %2.</translation>
    </message>
    <message>
        <source>Open results</source>
        <translation>Ergebnisse öffnen</translation>
    </message>
    <message>
        <source>Opened from the reports of %1; nothing was run again.</source>
        <translation>Aus den Berichten vom %1 geöffnet; nichts wurde neu gerechnet.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 elapsed</source>
        <translation>%1 von %2, %3 vergangen</translation>
    </message>
    <message>
        <source>, about %1 left</source>
        <translation>, noch etwa %1</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>KALDO allocates offspring to their parents from microsatellite genotypes when only part of the true parents has been collected. Where a parent is missing from the collection it says UC instead of guessing.

It also simulates how far such allocations can be trusted with your loci, before or after the field work.

You need: a file with the names of the loci, the genotypes of the collected parents, and those of the offspring, as plain text: a name and one field per locus, such as 152156.</source>
        <translation>KALDO ordnet Nachkommen anhand von Mikrosatelliten-Genotypen ihren Eltern zu, wenn nur ein Teil der wahren Eltern beprobt wurde. Wo ein Elternteil in der Probe fehlt, sagt es UC (unbeprobt), statt zu raten.

Es simuliert auch, wie weit man solchen Zuordnungen mit Ihren Loci trauen kann, vor oder nach der Feldarbeit.

Sie brauchen: eine Datei mit den Namen der Loci, die Genotypen der beprobten Eltern und die der Nachkommen, als reinen Text: ein Name und ein Feld je Locus, etwa 152156.</translation>
    </message>
    <message>
        <source>Name of project    -----&gt;</source>
        <translation>Name des Projekts    -----&gt;</translation>
    </message>
    <message>
        <source>Names the folder for the results, in the folder below. A second run under the same name replaces the results of the first.</source>
        <translation>Benennt den Ordner für die Ergebnisse, im Ordner darunter. Ein zweiter Lauf unter demselben Namen ersetzt die Ergebnisse des ersten.</translation>
    </message>
    <message>
        <source>ALLOCATION</source>
        <translation>ZUORDNUNG</translation>
    </message>
    <message>
        <source>SIMULATIONS</source>
        <translation>SIMULATIONEN</translation>
    </message>
    <message>
        <source>One set of candidate parents: any two of them may be a pair</source>
        <translation>Eine einzige Menge möglicher Eltern: je zwei davon können ein Paar sein</translation>
    </message>
    <message>
        <source>Males and females are known: a pair is a male and a female</source>
        <translation>Männchen und Weibchen sind bekannt: ein Paar ist ein Männchen und ein Weibchen</translation>
    </message>
    <message>
        <source>SEXED</source>
        <translation>MIT GESCHLECHT</translation>
    </message>
    <message>
        <source>NON-SEXED</source>
        <translation>OHNE GESCHLECHT</translation>
    </message>
    <message>
        <source>Collected &amp;parents file</source>
        <translation>Datei der beprobten &amp;Eltern</translation>
    </message>
    <message>
        <source>Genotypes of all collected candidate parents: a name and one field per locus. Lines with * divide them into groups; only parents of one group are tried as a pair.</source>
        <translation>Genotypen aller beprobten möglichen Eltern: ein Name und ein Feld je Locus. Zeilen mit * teilen sie in Gruppen; nur Eltern einer Gruppe werden als Paar versucht.</translation>
    </message>
    <message>
        <source>Collected &amp;males file</source>
        <translation>Datei der beprobten &amp;Männchen</translation>
    </message>
    <message>
        <source>Genotypes of the collected males: a name and one field per locus. Lines with * divide them into groups; males of a group are tried with the females of the group of the same number.</source>
        <translation>Genotypen der beprobten Männchen: ein Name und ein Feld je Locus. Zeilen mit * teilen sie in Gruppen; die Männchen einer Gruppe werden mit den Weibchen der Gruppe gleicher Nummer versucht.</translation>
    </message>
    <message>
        <source>Collected &amp;females file</source>
        <translation>Datei der beprobten &amp;Weibchen</translation>
    </message>
    <message>
        <source>Genotypes of the collected females, in as many groups as the males.</source>
        <translation>Genotypen der beprobten Weibchen, in ebenso vielen Gruppen wie die Männchen.</translation>
    </message>
    <message>
        <source>&amp;Offspring file</source>
        <translation>Datei der &amp;Nachkommen</translation>
    </message>
    <message>
        <source>Genotypes of the offspring to allocate. A locus that could not be typed is a field of zeros.</source>
        <translation>Genotypen der Nachkommen, die zuzuordnen sind. Ein Locus, der sich nicht typisieren ließ, ist ein Feld aus Nullen.</translation>
    </message>
    <message>
        <source>Names of &amp;loci file</source>
        <translation>Datei der Namen der &amp;Loci</translation>
    </message>
    <message>
        <source>The names of the loci, in the order in which their fields follow each individual&apos;s name.</source>
        <translation>Die Namen der Loci in der Reihenfolge, in der ihre Felder auf den Namen jedes Individuums folgen.</translation>
    </message>
    <message>
        <source>Something is &amp;known of single offspring</source>
        <translation>Über einzelne Nachkommen ist etwas be&amp;kannt</translation>
    </message>
    <message>
        <source>For a known mother, candidates or a group of each offspring: only pairs that agree are tried.</source>
        <translation>Für eine bekannte Mutter, mögliche Eltern oder eine Gruppe jedes Nachkommen: nur passende Paare werden versucht.</translation>
    </message>
    <message>
        <source>Known mothers file</source>
        <translation>Datei der bekannten Mütter</translation>
    </message>
    <message>
        <source>Per line an offspring and its mother; where sexes are not known, one of its parents.</source>
        <translation>Je Zeile ein Nachkomme und seine Mutter; bei unbekanntem Geschlecht ein Elternteil.</translation>
    </message>
    <message>
        <source>Candidates file</source>
        <translation>Datei der möglichen Eltern</translation>
    </message>
    <message>
        <source>Per line an offspring and the parents that may be its own.</source>
        <translation>Je Zeile ein Nachkomme und die Eltern, die in Frage kommen.</translation>
    </message>
    <message>
        <source>Groups of offspring file</source>
        <translation>Datei der Gruppen der Nachkommen</translation>
    </message>
    <message>
        <source>Per line an offspring and the number of its group of parents: 1, 2 and so on.</source>
        <translation>Je Zeile ein Nachkomme und die Nummer seiner Elterngruppe: 1, 2 und so weiter.</translation>
    </message>
    <message>
        <source>&amp;No Error</source>
        <translation>&amp;Kein Fehler</translation>
    </message>
    <message>
        <source>Every allele of a parent is read as itself: one misread allele excludes a parent.</source>
        <translation>Jedes Allel eines Elternteils wird richtig gelesen: ein einziges falsch gelesenes Allel schließt den Elternteil aus.</translation>
    </message>
    <message>
        <source>&amp;Uniform</source>
        <translation>&amp;Gleichverteilt</translation>
    </message>
    <message>
        <source>An allele may be read as any other allele of its locus, all with the same probability.</source>
        <translation>Ein Allel kann als jedes andere Allel seines Locus gelesen werden, alle mit derselben Wahrscheinlichkeit.</translation>
    </message>
    <message>
        <source>N&amp;on Uniform</source>
        <translation>&amp;Nicht gleichverteilt</translation>
    </message>
    <message>
        <source>An allele may be read one or two unit distances shorter or longer, as stutter and slips of the polymerase do.</source>
        <translation>Ein Allel kann um einen oder zwei Einheitsabstände kürzer oder länger gelesen werden, wie es durch Stotterbanden und Verrutschen der Polymerase geschieht.</translation>
    </message>
    <message>
        <source>&amp;Global error</source>
        <translation>Fehler &amp;insgesamt</translation>
    </message>
    <message>
        <source>Probability that an allele is read as any other one, all others together: at most 0.1.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel als irgendein anderes gelesen wird, alle anderen zusammen: höchstens 0.1.</translation>
    </message>
    <message>
        <source>-&amp;2 units</source>
        <translation>-&amp;2 Einheiten</translation>
    </message>
    <message>
        <source>Probability that an allele is read two unit distances shorter.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel zwei Einheitsabstände kürzer gelesen wird.</translation>
    </message>
    <message>
        <source>-&amp;1 unit</source>
        <translation>-&amp;1 Einheit</translation>
    </message>
    <message>
        <source>Probability that an allele is read one unit distance shorter.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel einen Einheitsabstand kürzer gelesen wird.</translation>
    </message>
    <message>
        <source>&amp;Target Allele</source>
        <translation>&amp;Ziel-Allel</translation>
    </message>
    <message>
        <source>Probability that an allele is read as itself: 0.9 to 1.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel richtig gelesen wird: 0.9 bis 1.</translation>
    </message>
    <message>
        <source>+1 un&amp;it</source>
        <translation>+1 &amp;Einheit</translation>
    </message>
    <message>
        <source>Probability that an allele is read one unit distance longer.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel einen Einheitsabstand länger gelesen wird.</translation>
    </message>
    <message>
        <source>+2 unit&amp;s</source>
        <translation>+2 Ein&amp;heiten</translation>
    </message>
    <message>
        <source>Probability that an allele is read two unit distances longer.</source>
        <translation>Wahrscheinlichkeit, dass ein Allel zwei Einheitsabstände länger gelesen wird.</translation>
    </message>
    <message>
        <source>%1: %2 is not a number</source>
        <translation>%1: %2 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1: enter a number with a decimal point</source>
        <translation>%1: bitte eine Zahl mit Dezimalpunkt eingeben</translation>
    </message>
    <message>
        <source>The five probabilities sum to 1.</source>
        <translation>Die fünf Wahrscheinlichkeiten ergeben zusammen 1.</translation>
    </message>
    <message>
        <source>The five probabilities sum to %1, not to 1.</source>
        <translation>Die fünf Wahrscheinlichkeiten ergeben zusammen %1, nicht 1.</translation>
    </message>
    <message>
        <source>  Model of error  </source>
        <translation>  Fehlermodell  </translation>
    </message>
    <message>
        <source>&amp;Cumulative Sequence</source>
        <translation>&amp;Kumulative Folge</translation>
    </message>
    <message>
        <source>Run with the first locus, then with the first two, and so on: shows how many loci are enough.</source>
        <translation>Rechnet mit dem ersten Locus, dann mit den ersten zwei und so weiter: zeigt, wie viele Loci genügen.</translation>
    </message>
    <message>
        <source>  Choice of loci  </source>
        <translation>  Auswahl der Loci  </translation>
    </message>
    <message>
        <source>Whether the locus takes part in the run</source>
        <translation>Ob der Locus am Lauf teilnimmt</translation>
    </message>
    <message>
        <source>Print results for each &amp;iteration</source>
        <translation>Ergebnisse jeder &amp;Iteration ausgeben</translation>
    </message>
    <message>
        <source>Write the tables of all iterations, a file per origin.</source>
        <translation>Schreibt die Tabellen aller Iterationen, eine Datei je Herkunft.</translation>
    </message>
    <message>
        <source>Print global statistics for each &amp;subset of loci (recommended)</source>
        <translation>Gesamtstatistik jeder &amp;Teilmenge der Loci ausgeben (empfohlen)</translation>
    </message>
    <message>
        <source>Write means and standard deviations of every subset at the end of the summary.</source>
        <translation>Schreibt Mittelwerte und Standardabweichungen jeder Teilmenge ans Ende der Zusammenfassung.</translation>
    </message>
    <message>
        <source>modern &amp;random numbers</source>
        <translation>moderne &amp;Zufallszahlen</translation>
    </message>
    <message>
        <source>Numbers of 64 bits, without the coarse draws of the default ones: needed where alleles have two digits.</source>
        <translation>Zahlen mit 64 Bit, ohne die groben Ziehungen der üblichen: nötig, wo Allele zwei Ziffern haben.</translation>
    </message>
    <message>
        <source>the same random numbers for &amp;all subsets</source>
        <translation>&amp;dieselben Zufallszahlen für alle Teilmengen</translation>
    </message>
    <message>
        <source>All subsets of loci see the same parents and offspring, so that they differ less by chance.</source>
        <translation>Alle Teilmengen der Loci sehen dieselben Eltern und Nachkommen und unterscheiden sich so weniger durch Zufall.</translation>
    </message>
    <message>
        <source>simulated &amp;parents</source>
        <translation>simulierte &amp;Eltern</translation>
    </message>
    <message>
        <source>Keep the simulated parents of the last iteration, one file per group.</source>
        <translation>Behält die simulierten Eltern der letzten Iteration, eine Datei je Gruppe.</translation>
    </message>
    <message>
        <source>pseudo-&amp;offspring</source>
        <translation>&amp;Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>Keep the pseudo-offspring of the last iteration.</source>
        <translation>Behält die Pseudo-Nachkommen der letzten Iteration.</translation>
    </message>
    <message>
        <source>transmission &amp;matrices</source>
        <translation>Übertragungs&amp;matrizen</translation>
    </message>
    <message>
        <source>Keep the listing of all allocated pseudo-offspring of all iterations. It can be very large.</source>
        <translation>Behält die Liste aller zugeordneten Pseudo-Nachkommen aller Iterationen. Sie kann sehr lang werden.</translation>
    </message>
    <message>
        <source>S&amp;eed</source>
        <translation>&amp;Startwert</translation>
    </message>
    <message>
        <source>Start of the random numbers, 0 to 4294967295: the same seed gives the same results. Empty: the calendar time; the run record tells it.</source>
        <translation>Beginn der Zufallszahlen, 0 bis 4294967295: derselbe Startwert gibt dieselben Ergebnisse. Leer: die Kalenderzeit; das Laufprotokoll nennt sie.</translation>
    </message>
    <message>
        <source>How many of them are drawn anew at every iteration: a whole number.</source>
        <translation>Wie viele davon in jeder Iteration neu gezogen werden: eine ganze Zahl.</translation>
    </message>
    <message>
        <source>How many there may be in the population; sets the proportion of collected parents, and with it the share of each origin of the pseudo-offspring.</source>
        <translation>Wie viele es in der Population geben mag; bestimmt den Anteil der beprobten Eltern und damit den Anteil jeder Herkunft der Pseudo-Nachkommen.</translation>
    </message>
    <message>
        <source>A representative sample: pseudo-collected parents are drawn from its allele frequencies.</source>
        <translation>Eine repräsentative Stichprobe: aus ihren Allelfrequenzen werden die pseudo-beprobten Eltern gezogen.</translation>
    </message>
    <message>
        <source>A representative sample: the uncollected parents are drawn from its allele frequencies at every iteration.</source>
        <translation>Eine repräsentative Stichprobe: aus ihren Allelfrequenzen werden in jeder Iteration die unbeprobten Eltern gezogen.</translation>
    </message>
    <message>
        <source>How many parents you expect to collect; as many are drawn at every iteration.</source>
        <translation>Wie viele Eltern Sie zu beproben hoffen; so viele werden in jeder Iteration gezogen.</translation>
    </message>
    <message>
        <source>  Parents  </source>
        <translation>  Eltern  </translation>
    </message>
    <message>
        <source>Sample of &amp;pseudo-collected parents</source>
        <translation>Stichprobe der &amp;pseudo-beprobten Eltern</translation>
    </message>
    <message>
        <source>&amp;Estimated number of pseudo-collected parents</source>
        <translation>&amp;Geschätzte Anzahl pseudo-beprobter Eltern</translation>
    </message>
    <message>
        <source>Sample of &amp;uncollected parents</source>
        <translation>Stichprobe der &amp;unbeprobten Eltern</translation>
    </message>
    <message>
        <source>Estimated &amp;number of uncollected parents</source>
        <translation>Geschätzte &amp;Anzahl unbeprobter Eltern</translation>
    </message>
    <message>
        <source>How many true parents were not collected; as many are drawn at every iteration. Together with the collected ones they set the share of each origin of the pseudo-offspring.</source>
        <translation>Wie viele der wahren Eltern nicht beprobt wurden; so viele werden in jeder Iteration gezogen. Zusammen mit den beprobten bestimmen sie den Anteil jeder Herkunft der Pseudo-Nachkommen.</translation>
    </message>
    <message>
        <source>  Males  </source>
        <translation>  Männchen  </translation>
    </message>
    <message>
        <source>Sample of pseudo-collected &amp;males</source>
        <translation>Stichprobe der pseudo-beprobten &amp;Männchen</translation>
    </message>
    <message>
        <source>&amp;Number of pseudo-collected males</source>
        <translation>&amp;Anzahl pseudo-beprobter Männchen</translation>
    </message>
    <message>
        <source>Sample of &amp;uncollected males</source>
        <translation>Stichprobe der &amp;unbeprobten Männchen</translation>
    </message>
    <message>
        <source>Num&amp;ber of uncollected males</source>
        <translation>An&amp;zahl unbeprobter Männchen</translation>
    </message>
    <message>
        <source>Estimated number of (pseudo)collected male parents   -------------- &gt;</source>
        <translation>Geschätzte Anzahl (pseudo)beprobter Männchen   -------------- &gt;</translation>
    </message>
    <message>
        <source>Estimated number of uncollected male parents   ------------------------ &gt;</source>
        <translation>Geschätzte Anzahl unbeprobter Männchen   ------------------------ &gt;</translation>
    </message>
    <message>
        <source>  Females  </source>
        <translation>  Weibchen  </translation>
    </message>
    <message>
        <source>Sample of pseudo-collected &amp;females</source>
        <translation>Stichprobe der pseudo-beprobten &amp;Weibchen</translation>
    </message>
    <message>
        <source>Number &amp;of pseudo-collected females</source>
        <translation>Anza&amp;hl pseudo-beprobter Weibchen</translation>
    </message>
    <message>
        <source>Sample of unco&amp;llected females</source>
        <translation>Stichprobe der un&amp;beprobten Weibchen</translation>
    </message>
    <message>
        <source>Numbe&amp;r of uncollected females</source>
        <translation>Anzah&amp;l unbeprobter Weibchen</translation>
    </message>
    <message>
        <source>Estimated number of (pseudo)collected female parents   ----------- &gt;</source>
        <translation>Geschätzte Anzahl (pseudo)beprobter Weibchen   ----------- &gt;</translation>
    </message>
    <message>
        <source>Estimated number of uncollected female parents   --------------------- &gt;</source>
        <translation>Geschätzte Anzahl unbeprobter Weibchen   --------------------- &gt;</translation>
    </message>
    <message>
        <source>Nu&amp;mber of pseudo-offspring generated at each iteration</source>
        <translation>Anzahl der &amp;Pseudo-Nachkommen in jeder Iteration</translation>
    </message>
    <message>
        <source>They are shared out over the origins by the weights below; fractions are dropped.</source>
        <translation>Sie werden nach den Gewichten unten auf die Herkünfte verteilt; Bruchteile fallen weg.</translation>
    </message>
    <message>
        <source>Weights of the origins of the pseudo-offspring</source>
        <translation>Gewichte der Herkünfte der Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>The share of each parental origin in the population, which also weighs the partial results into the global ones</source>
        <translation>Der Anteil jeder elterlichen Herkunft in der Population, der auch die Teilergebnisse zu den Gesamtergebnissen gewichtet</translation>
    </message>
    <message>
        <source>True parents</source>
        <translation>Wahre Eltern</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Pseudo-offspring</source>
        <translation>Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>  Transmission error  </source>
        <translation>  Übertragungsfehler  </translation>
    </message>
    <message>
        <source>  Pseudo-offspring  </source>
        <translation>  Pseudo-Nachkommen  </translation>
    </message>
    <message>
        <source>  Position of each locus in the sequence  </source>
        <translation>  Platz jedes Locus in der Folge  </translation>
    </message>
    <message>
        <source>Position of the locus: 1 enters first. A whole number from 1 to the number of loci</source>
        <translation>Platz des Locus: 1 kommt zuerst. Eine ganze Zahl von 1 bis zur Anzahl der Loci</translation>
    </message>
    <message>
        <source>Number of &amp;iterations</source>
        <translation>Anzahl der &amp;Iterationen</translation>
    </message>
    <message>
        <source>How often parents are drawn and pseudo-offspring are produced and allocated: fewer than 1000 in the non-sexed flow, at most 1000 in the sexed one. More give steadier averages.</source>
        <translation>Wie oft Eltern gezogen und Pseudo-Nachkommen erzeugt und zugeordnet werden: weniger als 1000 ohne Geschlecht, höchstens 1000 mit Geschlecht. Mehr geben stetigere Mittelwerte.</translation>
    </message>
    <message>
        <source>&amp;parental procedure (real collected parents)</source>
        <translation>&amp;parentales Verfahren (wirklich beprobte Eltern)</translation>
    </message>
    <message>
        <source>After the field work: the collected parents are read from a file.</source>
        <translation>Nach der Feldarbeit: die beprobten Eltern werden aus einer Datei gelesen.</translation>
    </message>
    <message>
        <source>pr&amp;e-parental procedure (pseudo-collected parents)</source>
        <translation>präparentales &amp;Verfahren (pseudo-beprobte Eltern)</translation>
    </message>
    <message>
        <source>Before the field work: parents as you hope to collect them are drawn from the allele frequencies of a sample.</source>
        <translation>Vor der Feldarbeit: Eltern, wie Sie sie zu beproben hoffen, werden aus den Allelfrequenzen einer Stichprobe gezogen.</translation>
    </message>
    <message>
        <source>-   &amp;Your choice of loci</source>
        <translation>-   &amp;Ihre Auswahl der Loci</translation>
    </message>
    <message>
        <source>One run with the loci of your choice.</source>
        <translation>Ein Lauf mit den Loci Ihrer Wahl.</translation>
    </message>
    <message>
        <source>-   &amp;All subsets of loci</source>
        <translation>-   &amp;Alle Teilmengen der Loci</translation>
    </message>
    <message>
        <source>Every subset of the loci, from the smallest size on. Their number doubles with every locus: 10 loci have 1,023 subsets.</source>
        <translation>Jede Teilmenge der Loci, von der kleinsten Größe an. Ihre Zahl verdoppelt sich mit jedem Locus: 10 Loci haben 1023 Teilmengen.</translation>
    </message>
    <message>
        <source>-   &amp;Minimal subsets with correctness criteria</source>
        <translation>-   &amp;Minimale Teilmengen mit Richtigkeitskriterium</translation>
    </message>
    <message>
        <source>The same subsets, smallest first, until one reaches the criterion below.</source>
        <translation>Dieselben Teilmengen, die kleinsten zuerst, bis eine das Kriterium unten erreicht.</translation>
    </message>
    <message>
        <source>-   &amp;Cumulative sequence</source>
        <translation>-   &amp;Kumulative Folge</translation>
    </message>
    <message>
        <source>The first locus, the first two, and so on, in the order of the next screen.</source>
        <translation>Der erste Locus, die ersten zwei und so weiter, in der Reihenfolge des nächsten Bildschirms.</translation>
    </message>
    <message>
        <source>&amp;Give correctness criteria :</source>
        <translation>&amp;Richtigkeitskriterium :</translation>
    </message>
    <message>
        <source>The probability that any allocation is correct which a minimal subset has to reach: 0 to 1.</source>
        <translation>Die Wahrscheinlichkeit, dass eine beliebige Zuordnung richtig ist, die eine minimale Teilmenge erreichen muss: 0 bis 1.</translation>
    </message>
    <message>
        <source>&amp;Number of loci to start with :</source>
        <translation>A&amp;nzahl der Loci zu Beginn :</translation>
    </message>
    <message>
        <source>The smallest number of loci of a subset: 1 or more.</source>
        <translation>Die kleinste Anzahl der Loci einer Teilmenge: 1 oder mehr.</translation>
    </message>
    <message>
        <source>Maximal offset &amp;tolerance</source>
        <translation>Maximale Versatz&amp;toleranz</translation>
    </message>
    <message>
        <source>The largest difference between a parent&apos;s and an offspring&apos;s allele, in whole unit distances (repeats), that is taken for a transmission error. A parent that would need a larger one is declared uncollected (UC). 0 accepts exact alleles only.</source>
        <translation>Der größte Unterschied zwischen dem Allel eines Elternteils und dem des Nachkommen, in ganzen Einheitsabständen (Repeats), der als Übertragungsfehler gilt. Ein Elternteil, der einen größeren bräuchte, gilt als unbeprobt (UC). 0 lässt nur genau gleiche Allele zu.</translation>
    </message>
    <message>
        <source>The pseudo-offspring are allocated to the collected or pseudo-collected parents only. A tolerance acts where the allocation knows of errors.</source>
        <translation>Die Pseudo-Nachkommen werden nur den beprobten oder pseudo-beprobten Eltern zugeordnet. Eine Toleranz wirkt, wo die Zuordnung Fehler kennt.</translation>
    </message>
    <message>
        <source>The pseudo-offspring are allocated as in an allocation with the same transmission error, to the collected or pseudo-collected males and females only.</source>
        <translation>Die Pseudo-Nachkommen werden wie in einer Zuordnung mit demselben Übertragungsfehler zugeordnet, nur den beprobten oder pseudo-beprobten Männchen und Weibchen.</translation>
    </message>
    <message>
        <source>with the model &amp;No Error</source>
        <translation>mit dem Modell &amp;Kein Fehler</translation>
    </message>
    <message>
        <source>Strict exclusion: a pair fits every allele or is no pair. The figures are not those of an allocation with an error model.</source>
        <translation>Strenger Ausschluss: ein Paar passt zu jedem Allel oder ist keines. Die Zahlen sind nicht die einer Zuordnung mit einem Fehlermodell.</translation>
    </message>
    <message>
        <source>with the &amp;same transmission error, as an allocation would</source>
        <translation>mit &amp;demselben Übertragungsfehler, wie in einer Zuordnung</translation>
    </message>
    <message>
        <source>The figures tell how often an allocation with this model and this tolerance is right.</source>
        <translation>Die Zahlen sagen, wie oft eine Zuordnung mit diesem Modell und dieser Toleranz richtig ist.</translation>
    </message>
    <message>
        <source>with the model of the &amp;record</source>
        <translation>mit dem Modell des &amp;Protokolls</translation>
    </message>
    <message>
        <source>Another model than that of the transmission error.</source>
        <translation>Ein anderes Modell als das des Übertragungsfehlers.</translation>
    </message>
    <message>
        <source>Allele frequencies at %1</source>
        <translation>Allelfrequenzen an %1</translation>
    </message>
    <message>
        <source>allele size (bp)</source>
        <translation>Allelgröße (bp)</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>size (bp)</source>
        <translation>Größe (bp)</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>%1 males and %2 females</source>
        <translation>%1 Männchen und %2 Weibchen</translation>
    </message>
    <message numerus="yes">
        <source>%n parents</source>
        <comment>%n parents</comment>
        <translation>
            <numerusform>%n Elternteil</numerusform>
            <numerusform>%n Eltern</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 groups</source>
        <translation>%1 in %2 Gruppen</translation>
    </message>
    <message>
        <source>%1 of %2: </source>
        <translation>%1 von %2: </translation>
    </message>
    <message>
        <source>males file</source>
        <translation>Datei der Männchen</translation>
    </message>
    <message>
        <source>females file</source>
        <translation>Datei der Weibchen</translation>
    </message>
    <message>
        <source>parents file</source>
        <translation>Datei der Eltern</translation>
    </message>
    <message>
        <source>offspring file</source>
        <translation>Datei der Nachkommen</translation>
    </message>
    <message>
        <source>names of loci file</source>
        <translation>Datei der Namen der Loci</translation>
    </message>
    <message>
        <source>known mothers file</source>
        <translation>Datei der bekannten Mütter</translation>
    </message>
    <message>
        <source>candidates file</source>
        <translation>Datei der möglichen Eltern</translation>
    </message>
    <message>
        <source>groups of offspring file</source>
        <translation>Datei der Gruppen der Nachkommen</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Of the %1 parents of the offspring %2 are sure, %3 likely, %4 open and %5 not collected; of the %6 that are named %7 are expected to be wrong.</source>
        <translation>Von den %1 Eltern der Nachkommen sind %2 sicher, %3 wahrscheinlich, %4 offen und %5 nicht beprobt; von den %6 benannten sind %7 falsch zu erwarten.</translation>
    </message>
    <message>
        <source>Sexed allocation</source>
        <translation>Zuordnung mit Geschlecht</translation>
    </message>
    <message>
        <source>Non-sexed allocation</source>
        <translation>Zuordnung ohne Geschlecht</translation>
    </message>
    <message>
        <source>collected</source>
        <translation>beprobt</translation>
    </message>
    <message>
        <source>loci in use</source>
        <translation>verwendete Loci</translation>
    </message>
    <message>
        <source>error model</source>
        <translation>Fehlermodell</translation>
    </message>
    <message>
        <source>maximal offset tolerance</source>
        <translation>maximale Versatztoleranz</translation>
    </message>
    <message>
        <source>A cumulative sequence of loci was run. These results are those of its last combination; all of them are in the tab Sequence.</source>
        <translation>Eine kumulative Folge von Loci wurde gerechnet. Diese Ergebnisse sind die ihrer letzten Kombination; alle stehen unter Folge.</translation>
    </message>
    <message>
        <source>Files in &quot;%1&quot;</source>
        <translation>Dateien in „%1“</translation>
    </message>
    <message>
        <source>Offspring by allocation of their parents</source>
        <translation>Nachkommen nach der Zuordnung ihrer Eltern</translation>
    </message>
    <message>
        <source>class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>share of the offspring</source>
        <translation>Anteil der Nachkommen</translation>
    </message>
    <message>
        <source>share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>settled</source>
        <translation>entschieden</translation>
    </message>
    <message>
        <source>tied or open</source>
        <translation>gleichauf oder offen</translation>
    </message>
    <message>
        <source>allocation</source>
        <translation>Zuordnung</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>pairs %1</source>
        <translation>Paare %1</translation>
    </message>
    <message>
        <source>Allocations by number of loci</source>
        <translation>Zuordnungen nach Anzahl der Loci</translation>
    </message>
    <message>
        <source>loci</source>
        <translation>Loci</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>%1 sd</source>
        <translation>%1 SD</translation>
    </message>
    <message>
        <source>Numbers of the chart</source>
        <translation>Zahlen des Diagramms</translation>
    </message>
    <message>
        <source>Save c&amp;hart...</source>
        <translation>&amp;Diagramm speichern...</translation>
    </message>
    <message>
        <source>Save the chart for an article (SVG, PDF, PNG) or its numbers (CSV).</source>
        <translation>Speichert das Diagramm für einen Artikel (SVG, PDF, PNG) oder seine Zahlen (CSV).</translation>
    </message>
    <message>
        <source>Si&amp;ze...</source>
        <translation>G&amp;röße...</translation>
    </message>
    <message>
        <source>Choose the width and the height of a saved chart in millimetres.</source>
        <translation>Wählen Sie Breite und Höhe eines gespeicherten Diagramms in Millimetern.</translation>
    </message>
    <message>
        <source>Copy the chart as a picture, for a text or a slide.</source>
        <translation>Kopiert das Diagramm als Bild, für einen Text oder eine Folie.</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>&amp;Tabelle kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows, or all, with their heads, to be pasted into a spreadsheet.</source>
        <translation>Kopiert die gewählten Zeilen, oder alle, mit ihren Köpfen, zum Einfügen in eine Tabellenkalkulation.</translation>
    </message>
    <message>
        <source>Copy &amp;picture</source>
        <translation>&amp;Bild kopieren</translation>
    </message>
    <message>
        <source>&amp;Save chart...</source>
        <translation>&amp;Diagramm speichern...</translation>
    </message>
    <message>
        <source>Size of saved charts</source>
        <translation>Größe gespeicherter Diagramme</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>Vector graphics (*.svg)</source>
        <translation>Vektorgrafik (*.svg)</translation>
    </message>
    <message>
        <source>Portable document (*.pdf)</source>
        <translation>Portables Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Picture, 300 dpi (*.png)</source>
        <translation>Bild, 300 dpi (*.png)</translation>
    </message>
    <message>
        <source>Numbers of the chart (*.csv)</source>
        <translation>Zahlen des Diagramms (*.csv)</translation>
    </message>
    <message>
        <source>One parent carries one allele of the offspring and the other parent the other.</source>
        <translation>Ein Elternteil trägt das eine Allel des Nachkommen, der andere das andere.</translation>
    </message>
    <message>
        <source>Both parents carry the same allele of the offspring, nobody the other one. Offsets are 0 all the same; the likelihood speaks against the pair.</source>
        <translation>Beide Eltern tragen dasselbe Allel des Nachkommen, niemand das andere. Der Versatz ist trotzdem 0; die Likelihood spricht gegen das Paar.</translation>
    </message>
    <message>
        <source>Only parent 1 carries an allele of the offspring; parent 2 is measured.</source>
        <translation>Nur Elternteil 1 trägt ein Allel des Nachkommen; Elternteil 2 wird gemessen.</translation>
    </message>
    <message>
        <source>Only parent 2 carries an allele of the offspring; parent 1 is measured.</source>
        <translation>Nur Elternteil 2 trägt ein Allel des Nachkommen; Elternteil 1 wird gemessen.</translation>
    </message>
    <message>
        <source>&amp;Sexes file</source>
        <translation>Datei der &amp;Geschlechter</translation>
    </message>
    <message>
        <source>Per line an individual and m or f. Without it pedigrees name parent 1 and parent 2, which some programs do not take.</source>
        <translation>Je Zeile ein Individuum und m oder f. Ohne sie nennen Stammbäume Elternteil 1 und Elternteil 2, was manche Programme nicht annehmen.</translation>
    </message>
    <message>
        <source>&amp;Least probability</source>
        <translation>&amp;Kleinste Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Pedigrees leave out parents that are less sure, for instance 0.95. Empty: all that are named.</source>
        <translation>Stammbäume lassen Eltern weg, die weniger sicher sind, zum Beispiel 0.95. Leer: alle benannten.</translation>
    </message>
    <message>
        <source>In the folder of the run the files become a part of it, and its record lists them.</source>
        <translation>Im Ordner des Laufs werden die Dateien ein Teil davon, und sein Protokoll führt sie auf.</translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; was written, but cannot be opened.</source>
        <translation>Der Bericht „%1“ wurde geschrieben, lässt sich aber nicht öffnen.</translation>
    </message>
    <message>
        <source>The locus that excludes most pairs of strangers stands first. Many homozygote mismatches, a high null allele frequency or a high error rate ask for another look at its gels.</source>
        <translation>Der Locus, der die meisten Paare Fremder ausschließt, steht zuerst. Viele unpassende Homozygote, eine hohe Frequenz von Nullallelen oder eine hohe Fehlerrate verlangen einen zweiten Blick auf seine Gele.</translation>
    </message>
    <message>
        <source>What each locus is worth</source>
        <translation>Was jeder Locus wert ist</translation>
    </message>
    <message>
        <source>Copy &amp;rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the selected loci, or all, with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Kopiert die gewählten Loci, oder alle, mit ihren Köpfen, zum Einfügen in eine Tabellenkalkulation (Strg+C).</translation>
    </message>
    <message>
        <source>&amp;Export table...</source>
        <translation>Tabelle ex&amp;portieren...</translation>
    </message>
    <message>
        <source>Save the table as it is shown (CSV).</source>
        <translation>Speichert die Tabelle, wie sie zu sehen ist (CSV).</translation>
    </message>
    <message>
        <source>The collected parent, or UC: the true one is taken not to be among the collected.</source>
        <translation>Der beprobte Elternteil, oder UC: der wahre gilt als nicht unter den beprobten.</translation>
    </message>
    <message>
        <source>The probability that this is right: that it is the parent, or for UC that the parent was not collected.</source>
        <translation>Die Wahrscheinlichkeit, dass dies richtig ist: dass er ein Elternteil ist oder, bei UC, dass der Elternteil nicht beprobt wurde.</translation>
    </message>
    <message>
        <source>The most probable candidate, whatever the verdict.</source>
        <translation>Der wahrscheinlichste mögliche Elternteil, wie auch immer das Urteil lautet.</translation>
    </message>
    <message>
        <source>The probability that the most probable candidate is a parent.</source>
        <translation>Die Wahrscheinlichkeit, dass der wahrscheinlichste mögliche Elternteil einer ist.</translation>
    </message>
    <message>
        <source>Named or uncollected where that is as probable as the level of confidence asks for, else open.</source>
        <translation>Benannt oder unbeprobt, wo das so wahrscheinlich ist, wie das Vertrauensniveau verlangt, sonst offen.</translation>
    </message>
    <message>
        <source>The next most probable candidate.</source>
        <translation>Der nächstwahrscheinliche mögliche Elternteil.</translation>
    </message>
    <message>
        <source>The probability that the next most probable candidate is a parent.</source>
        <translation>Die Wahrscheinlichkeit, dass der nächstwahrscheinliche mögliche Elternteil einer ist.</translation>
    </message>
    <message>
        <source>The probability that this parent was not collected; where sexes are not known: 1 that neither was, 2 that at most one was.</source>
        <translation>Die Wahrscheinlichkeit, dass dieser Elternteil nicht beprobt wurde; bei unbekanntem Geschlecht: 1, dass keiner es wurde, 2, dass höchstens einer es wurde.</translation>
    </message>
    <message>
        <source>Place in the file of the parents, separators counted.</source>
        <translation>Platz in der Datei der Eltern, Trennzeilen mitgezählt.</translation>
    </message>
    <message>
        <source>Loci at which an error had to be assumed.</source>
        <translation>Loci, an denen ein Fehler angenommen werden musste.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Place in the offspring file.</source>
        <translation>Platz in der Datei der Nachkommen.</translation>
    </message>
    <message>
        <source>Offspring</source>
        <translation>Nachkomme</translation>
    </message>
    <message>
        <source>Name of the offspring.</source>
        <translation>Name des Nachkommen.</translation>
    </message>
    <message>
        <source>Parent 1</source>
        <translation>Elternteil 1</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Männchen</translation>
    </message>
    <message>
        <source>Parent 2</source>
        <translation>Elternteil 2</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Weibchen</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>How many parents, or which, are collected.</source>
        <translation>Wie viele Eltern, oder welche, beprobt sind.</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>Pairs that explain the offspring equally well; the first decided. 0: no pair is possible; 5+: more than five were met.</source>
        <translation>Paare, die den Nachkommen gleich gut erklären; das erste entschied. 0: kein Paar ist möglich; 5+: mehr als fünf kamen vor.</translation>
    </message>
    <message>
        <source>Errors 1</source>
        <translation>Fehler 1</translation>
    </message>
    <message>
        <source>Male errors</source>
        <translation>Fehler Männchen</translation>
    </message>
    <message>
        <source>Errors 2</source>
        <translation>Fehler 2</translation>
    </message>
    <message>
        <source>Female errors</source>
        <translation>Fehler Weibchen</translation>
    </message>
    <message>
        <source>Rank 1</source>
        <translation>Rang 1</translation>
    </message>
    <message>
        <source>Male rank</source>
        <translation>Rang Männchen</translation>
    </message>
    <message>
        <source>Rank 2</source>
        <translation>Rang 2</translation>
    </message>
    <message>
        <source>Female rank</source>
        <translation>Rang Weibchen</translation>
    </message>
    <message>
        <source>Likelihood</source>
        <translation>Likelihood</translation>
    </message>
    <message>
        <source>Of the best pair. It ranks pairs; it is no certainty.</source>
        <translation>Des besten Paars. Sie ordnet die Paare; eine Sicherheit ist sie nicht.</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>How far both parents can be relied on together. The list &quot;Show&quot; explains the words.</source>
        <translation>Wie weit man sich auf beide Eltern zusammen verlassen kann. Die Liste „Auswahl“ erklärt die Wörter.</translation>
    </message>
    <message>
        <source>p right 1</source>
        <translation>p richtig 1</translation>
    </message>
    <message>
        <source>p male right</source>
        <translation>p Männchen richtig</translation>
    </message>
    <message>
        <source>p right 2</source>
        <translation>p richtig 2</translation>
    </message>
    <message>
        <source>p female right</source>
        <translation>p Weibchen richtig</translation>
    </message>
    <message>
        <source>Candidate 1</source>
        <translation>Möglich 1</translation>
    </message>
    <message>
        <source>Most probable male</source>
        <translation>Wahrscheinlichstes Männchen</translation>
    </message>
    <message>
        <source>Candidate 2</source>
        <translation>Möglich 2</translation>
    </message>
    <message>
        <source>Most probable female</source>
        <translation>Wahrscheinlichstes Weibchen</translation>
    </message>
    <message>
        <source>p 1</source>
        <translation>p 1</translation>
    </message>
    <message>
        <source>p male</source>
        <translation>p Männchen</translation>
    </message>
    <message>
        <source>p 2</source>
        <translation>p 2</translation>
    </message>
    <message>
        <source>p female</source>
        <translation>p Weibchen</translation>
    </message>
    <message>
        <source>Verdict 1</source>
        <translation>Urteil 1</translation>
    </message>
    <message>
        <source>Verdict male</source>
        <translation>Urteil Männchen</translation>
    </message>
    <message>
        <source>Verdict 2</source>
        <translation>Urteil 2</translation>
    </message>
    <message>
        <source>Verdict female</source>
        <translation>Urteil Weibchen</translation>
    </message>
    <message>
        <source>Runner-up 1</source>
        <translation>Zweiter 1</translation>
    </message>
    <message>
        <source>Runner-up male</source>
        <translation>Zweites Männchen</translation>
    </message>
    <message>
        <source>Runner-up 2</source>
        <translation>Zweiter 2</translation>
    </message>
    <message>
        <source>Runner-up female</source>
        <translation>Zweites Weibchen</translation>
    </message>
    <message>
        <source>p runner-up 1</source>
        <translation>p Zweiter 1</translation>
    </message>
    <message>
        <source>p runner-up male</source>
        <translation>p zweites Männchen</translation>
    </message>
    <message>
        <source>p runner-up 2</source>
        <translation>p Zweiter 2</translation>
    </message>
    <message>
        <source>p runner-up female</source>
        <translation>p zweites Weibchen</translation>
    </message>
    <message>
        <source>p not collected 1</source>
        <translation>p nicht beprobt 1</translation>
    </message>
    <message>
        <source>p male not collected</source>
        <translation>p Männchen nicht beprobt</translation>
    </message>
    <message>
        <source>p not collected 2</source>
        <translation>p nicht beprobt 2</translation>
    </message>
    <message>
        <source>p female not collected</source>
        <translation>p Weibchen nicht beprobt</translation>
    </message>
    <message>
        <source>More than five equally likely pairs were met during the search. The mark stays, also when a better pair was found later.</source>
        <translation>Mehr als fünf gleich wahrscheinliche Paare kamen während der Suche vor. Das Zeichen bleibt, auch wenn später ein besseres Paar gefunden wurde.</translation>
    </message>
    <message>
        <source>Offspring and their parents</source>
        <translation>Nachkommen und ihre Eltern</translation>
    </message>
    <message>
        <source>part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>Show only offspring whose name, or the name of a parent, contains this.</source>
        <translation>Zeigt nur Nachkommen, deren Name oder der Name eines Elternteils dies enthält.</translation>
    </message>
    <message>
        <source>Show only one class of allocations, or those to be looked at twice.</source>
        <translation>Zeigt nur eine Klasse von Zuordnungen, oder solche, die einen zweiten Blick verdienen.</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Elternteil</translation>
    </message>
    <message>
        <source>Name of the collected parent.</source>
        <translation>Name des beprobten Elternteils.</translation>
    </message>
    <message>
        <source>Offspring that the results allocate to it.</source>
        <translation>Nachkommen, die ihm die Ergebnisse zuordnen.</translation>
    </message>
    <message>
        <source>Named</source>
        <translation>Benannt</translation>
    </message>
    <message>
        <source>Offspring of which it is named a parent at the level of confidence.</source>
        <translation>Nachkommen, als deren Elternteil er auf dem Vertrauensniveau benannt ist.</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>The sum of the probabilities of the allocations to it: so many of them are expected to be its own.</source>
        <translation>Die Summe der Wahrscheinlichkeiten der Zuordnungen zu ihm: so viele davon sind als seine eigenen zu erwarten.</translation>
    </message>
    <message>
        <source>Mates</source>
        <translation>Partner</translation>
    </message>
    <message>
        <source>Collected parents with whom it has some of them.</source>
        <translation>Beprobte Eltern, mit denen er einige davon hat.</translation>
    </message>
    <message>
        <source>With UC</source>
        <translation>Mit UC</translation>
    </message>
    <message>
        <source>Offspring whose other parent is taken as uncollected.</source>
        <translation>Nachkommen, deren anderer Elternteil als unbeprobt gilt.</translation>
    </message>
    <message>
        <source>Collected parents and their offspring</source>
        <translation>Beprobte Eltern und ihre Nachkommen</translation>
    </message>
    <message>
        <source>Show only parents whose name contains this.</source>
        <translation>Zeigt nur Eltern, deren Name dies enthält.</translation>
    </message>
    <message>
        <source>Show only parents with offspring, or without.</source>
        <translation>Zeigt nur Eltern mit Nachkommen, oder ohne.</translation>
    </message>
    <message>
        <source>%1 of %2 collected parents have no offspring here.</source>
        <translation>%1 von %2 beprobten Eltern haben hier keine Nachkommen.</translation>
    </message>
    <message>
        <source>Show the offspring of the chosen parent (Enter, or a double click).</source>
        <translation>Zeigt die Nachkommen des gewählten Elternteils (Eingabetaste oder Doppelklick).</translation>
    </message>
    <message>
        <source>all parents</source>
        <translation>alle Eltern</translation>
    </message>
    <message>
        <source>with offspring</source>
        <translation>mit Nachkommen</translation>
    </message>
    <message>
        <source>without offspring</source>
        <translation>ohne Nachkommen</translation>
    </message>
    <message>
        <source>%1 of %2 parents</source>
        <translation>%1 von %2 Eltern</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>collected parents</source>
        <translation>beprobte Eltern</translation>
    </message>
    <message>
        <source>pseudo-collected parents</source>
        <translation>pseudo-beprobte Eltern</translation>
    </message>
    <message>
        <source>uncollected parents</source>
        <translation>unbeprobte Eltern</translation>
    </message>
    <message>
        <source>collected males</source>
        <translation>beprobte Männchen</translation>
    </message>
    <message>
        <source>pseudo-collected males</source>
        <translation>pseudo-beprobte Männchen</translation>
    </message>
    <message>
        <source>uncollected males</source>
        <translation>unbeprobte Männchen</translation>
    </message>
    <message>
        <source>collected females</source>
        <translation>beprobte Weibchen</translation>
    </message>
    <message>
        <source>pseudo-collected females</source>
        <translation>pseudo-beprobte Weibchen</translation>
    </message>
    <message>
        <source>uncollected females</source>
        <translation>unbeprobte Weibchen</translation>
    </message>
    <message>
        <source>%1 drawn from %2</source>
        <translation>%1, gezogen aus %2</translation>
    </message>
    <message>
        <source>true parents</source>
        <translation>wahre Eltern</translation>
    </message>
    <message>
        <source>%1 candidates, %2 in all</source>
        <translation>%1 mögliche, %2 insgesamt</translation>
    </message>
    <message>
        <source>pseudo-offspring</source>
        <translation>Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>%1 x %2 iterations</source>
        <translation>%1 x %2 Iterationen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>allocated with</source>
        <translation>zugeordnet mit</translation>
    </message>
    <message>
        <source>seed</source>
        <translation>Startwert</translation>
    </message>
    <message>
        <source>last loci run</source>
        <translation>zuletzt gerechnete Loci</translation>
    </message>
    <message>
        <source>random numbers</source>
        <translation>Zufallszahlen</translation>
    </message>
    <message>
        <source>modern</source>
        <translation>modern</translation>
    </message>
    <message>
        <source>iterations run</source>
        <translation>gerechnete Iterationen</translation>
    </message>
    <message>
        <source>any allocation correct</source>
        <translation>beliebige Zuordnung richtig</translation>
    </message>
    <message>
        <source>%1 (estimated probability in the population, standard error %2)</source>
        <translation>%1 (geschätzte Wahrscheinlichkeit in der Population, Standardfehler %2)</translation>
    </message>
    <message>
        <source>Subsets of loci run: %1.</source>
        <translation>Gerechnete Teilmengen der Loci: %1.</translation>
    </message>
    <message>
        <source>The criterion %1 has been reached with %2 loci.</source>
        <translation>Das Kriterium %1 wurde mit %2 Loci erreicht.</translation>
    </message>
    <message>
        <source>No subset reached the criterion %1.</source>
        <translation>Keine Teilmenge erreichte das Kriterium %1.</translation>
    </message>
    <message>
        <source>Sexed simulation, PARENTAL</source>
        <translation>Simulation mit Geschlecht, PARENTAL</translation>
    </message>
    <message>
        <source>Sexed simulation, PRE-PARENTAL</source>
        <translation>Simulation mit Geschlecht, PRÄPARENTAL</translation>
    </message>
    <message>
        <source>Non-sexed simulation, PARENTAL</source>
        <translation>Simulation ohne Geschlecht, PARENTAL</translation>
    </message>
    <message>
        <source>Non-sexed simulation, PRE-PARENTAL</source>
        <translation>Simulation ohne Geschlecht, PRÄPARENTAL</translation>
    </message>
    <message>
        <source>the choice &quot;with the same transmission error&quot; beside the tolerance</source>
        <translation>die Wahl „mit demselben Übertragungsfehler“ neben der Toleranz</translation>
    </message>
    <message>
        <source>Correct decisions by origin of the offspring</source>
        <translation>Richtige Entscheidungen nach Herkunft der Nachkommen</translation>
    </message>
    <message>
        <source>correct, mean and sd</source>
        <translation>richtig, Mittelwert und SD</translation>
    </message>
    <message>
        <source>correct</source>
        <translation>richtig</translation>
    </message>
    <message>
        <source>sd</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>Correct allocations in the population, by number of loci</source>
        <translation>Richtige Zuordnungen in der Population, nach Anzahl der Loci</translation>
    </message>
    <message>
        <source>estimated probability</source>
        <translation>geschätzte Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>any, of these pseudo-offspring</source>
        <translation>beliebige, dieser Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>Estimated probability to be correct, in the population</source>
        <translation>Geschätzte Wahrscheinlichkeit, richtig zu sein, in der Population</translation>
    </message>
    <message>
        <source>mean and sd</source>
        <translation>Mittelwert und SD</translation>
    </message>
    <message>
        <source>se</source>
        <translation>SE</translation>
    </message>
    <message>
        <source>Subsets of loci</source>
        <translation>Teilmengen der Loci</translation>
    </message>
    <message>
        <source>names of loci</source>
        <translation>Namen von Loci</translation>
    </message>
    <message>
        <source>Show only subsets that contain all these loci, with blanks between them; parts of names will do.</source>
        <translation>Zeigt nur Teilmengen, die alle diese Loci enthalten, durch Leerzeichen getrennt; Teile der Namen genügen.</translation>
    </message>
    <message>
        <source>Show only subsets of one size, or the best of each.</source>
        <translation>Zeigt nur Teilmengen einer Größe, oder die beste jeder Größe.</translation>
    </message>
    <message>
        <source>Any allocation correct, best subset of each size</source>
        <translation>Beliebige Zuordnung richtig, beste Teilmenge jeder Größe</translation>
    </message>
    <message>
        <source>any correct</source>
        <translation>beliebige richtig</translation>
    </message>
    <message>
        <source>best subset</source>
        <translation>beste Teilmenge</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>Files an&amp;d settings</source>
        <translation>Dateien und Einstell&amp;ungen</translation>
    </message>
    <message>
        <source>Show which files and settings this run had, and what it wrote.</source>
        <translation>Zeigt, welche Dateien und Einstellungen dieser Lauf hatte und was er schrieb.</translation>
    </message>
    <message>
        <source>How far can this be tr&amp;usted?</source>
        <translation>&amp;Wie verlässlich ist das?</translation>
    </message>
    <message>
        <source>Simulate offspring of these parents, whose origin is known, and see how often such allocations are right. The screens are filled in for you; the figures come back here.</source>
        <translation>Simuliert Nachkommen dieser Eltern, deren Herkunft bekannt ist, und zeigt, wie oft solche Zuordnungen richtig sind. Die Bildschirme werden für Sie ausgefüllt; die Zahlen kommen hierher zurück.</translation>
    </message>
    <message>
        <source>Summary of the run</source>
        <translation>Zusammenfassung des Laufs</translation>
    </message>
    <message>
        <source>Offspring to check</source>
        <translation>Zu prüfende Nachkommen</translation>
    </message>
    <message>
        <source>Choose a line to see the offspring, locus by locus.</source>
        <translation>Wählen Sie eine Zeile, um den Nachkommen Locus für Locus zu sehen.</translation>
    </message>
    <message>
        <source>To chec&amp;k:</source>
        <translation>Zu &amp;prüfen:</translation>
    </message>
    <message>
        <source>Cannot open file &quot;%1&quot;!</source>
        <translation>Die Datei „%1“ lässt sich nicht öffnen!</translation>
    </message>
    <message>
        <source>The names of loci file holds no locus!</source>
        <translation>Die Datei der Namen der Loci enthält keinen Locus!</translation>
    </message>
    <message>
        <source>A locus name has more than %1 characters!</source>
        <translation>Ein Name eines Locus hat mehr als %1 Zeichen!</translation>
    </message>
    <message>
        <source>Two loci have the same name!</source>
        <translation>Zwei Loci haben denselben Namen!</translation>
    </message>
    <message>
        <source>The file of %1 holds no individual!</source>
        <translation>Die Datei (%1) enthält kein Individuum!</translation>
    </message>
    <message>
        <source>A sample has no defined allele at a locus!</source>
        <translation>Eine Stichprobe hat an einem Locus kein definiertes Allel!</translation>
    </message>
    <message>
        <source>The male and the female file hold different numbers of separators!</source>
        <translation>Die Dateien der Männchen und der Weibchen haben verschieden viele Trennzeilen!</translation>
    </message>
    <message>
        <source>Simulation files have no separators!</source>
        <translation>Dateien von Simulationen haben keine Trennzeilen!</translation>
    </message>
    <message>
        <source>A record has a wrong number of fields!</source>
        <translation>Ein Eintrag hat eine falsche Anzahl von Feldern!</translation>
    </message>
    <message>
        <source>A genotype field is not all digits!</source>
        <translation>Ein Genotypfeld besteht nicht nur aus Ziffern!</translation>
    </message>
    <message>
        <source>A genotype field has another number of digits!</source>
        <translation>Ein Genotypfeld hat eine andere Anzahl von Ziffern!</translation>
    </message>
    <message>
        <source>An allele has more than %1 digits!</source>
        <translation>Ein Allel hat mehr als %1 Ziffern!</translation>
    </message>
    <message>
        <source>A name has more than %1 characters!</source>
        <translation>Ein Name hat mehr als %1 Zeichen!</translation>
    </message>
    <message>
        <source>A name holds a character that cannot be shown!</source>
        <translation>Ein Name enthält ein Zeichen, das sich nicht anzeigen lässt!</translation>
    </message>
    <message>
        <source>A name is not written in UTF-8!</source>
        <translation>Ein Name ist nicht in UTF-8 geschrieben!</translation>
    </message>
    <message>
        <source>A parent has a name that stands for no parent!</source>
        <translation>Ein Elternteil hat einen Namen, der für „kein Elternteil“ steht!</translation>
    </message>
    <message>
        <source>There is no individual of that name!</source>
        <translation>Es gibt kein Individuum dieses Namens!</translation>
    </message>
    <message>
        <source>A name stands for more than one individual!</source>
        <translation>Ein Name steht für mehr als ein Individuum!</translation>
    </message>
    <message>
        <source>An offspring has two lines!</source>
        <translation>Ein Nachkomme hat zwei Zeilen!</translation>
    </message>
    <message>
        <source>A line holds other words than it should!</source>
        <translation>Eine Zeile enthält andere Wörter, als sie soll!</translation>
    </message>
    <message>
        <source>There is no group of parents of that number!</source>
        <translation>Es gibt keine Elterngruppe mit dieser Nummer!</translation>
    </message>
    <message>
        <source>No pair of parents is left for an offspring!</source>
        <translation>Für einen Nachkommen bleibt kein Elternpaar übrig!</translation>
    </message>
    <message>
        <source>There is no locus of that name!</source>
        <translation>Es gibt keinen Locus dieses Namens!</translation>
    </message>
    <message>
        <source>Choose at least one locus!</source>
        <translation>Wählen Sie mindestens einen Locus!</translation>
    </message>
    <message>
        <source>Fewer loci are in use than the number of loci to start with!</source>
        <translation>Es werden weniger Loci verwendet, als zu Beginn stehen sollen!</translation>
    </message>
    <message>
        <source>There would be %1 subsets of loci!</source>
        <translation>Es gäbe %1 Teilmengen der Loci!</translation>
    </message>
    <message>
        <source>The number of iterations must be above 0!</source>
        <translation>Die Anzahl der Iterationen muss über 0 liegen!</translation>
    </message>
    <message>
        <source>The number of pseudo-offspring must be above 0!</source>
        <translation>Die Anzahl der Pseudo-Nachkommen muss über 0 liegen!</translation>
    </message>
    <message>
        <source>The number of pseudo-collected parents must be above 0!</source>
        <translation>Die Anzahl der pseudo-beprobten Eltern muss über 0 liegen!</translation>
    </message>
    <message>
        <source>That number of parents is not possible!</source>
        <translation>Diese Anzahl von Eltern ist nicht möglich!</translation>
    </message>
    <message>
        <source>The estimated numbers of parents must not be negative, and not all 0!</source>
        <translation>Die geschätzten Anzahlen der Eltern dürfen nicht negativ und nicht alle 0 sein!</translation>
    </message>
    <message>
        <source>There are too few parents for the pseudo-offspring!</source>
        <translation>Es gibt zu wenige Eltern für die Pseudo-Nachkommen!</translation>
    </message>
    <message>
        <source>A standard error to run until lies above 0 and below 1!</source>
        <translation>Ein Standardfehler als Ziel liegt über 0 und unter 1!</translation>
    </message>
    <message>
        <source>A number is missing!</source>
        <translation>Eine Zahl fehlt!</translation>
    </message>
    <message>
        <source>A whole number is wanted!</source>
        <translation>Eine ganze Zahl wird gebraucht!</translation>
    </message>
    <message>
        <source>A number is wanted!</source>
        <translation>Eine Zahl wird gebraucht!</translation>
    </message>
    <message>
        <source>Enter numbers with a decimal point!</source>
        <translation>Geben Sie Zahlen mit Dezimalpunkt ein!</translation>
    </message>
    <message>
        <source>A probability is not understood!</source>
        <translation>Eine Wahrscheinlichkeit ist nicht zu verstehen!</translation>
    </message>
    <message>
        <source>That seed is not possible!</source>
        <translation>Dieser Startwert ist nicht möglich!</translation>
    </message>
    <message>
        <source>That number of threads is not possible!</source>
        <translation>Diese Anzahl von Threads ist nicht möglich!</translation>
    </message>
    <message>
        <source>A level of confidence lies between 0.5 and 1!</source>
        <translation>Ein Vertrauensniveau liegt zwischen 0.5 und 1!</translation>
    </message>
    <message>
        <source>There is no such kind of file to keep!</source>
        <translation>Eine solche Art von Datei gibt es nicht zu behalten!</translation>
    </message>
    <message>
        <source>Choose files to keep, or none!</source>
        <translation>Wählen Sie Dateien, die behalten werden, oder keine!</translation>
    </message>
    <message>
        <source>There are no such random numbers!</source>
        <translation>Solche Zufallszahlen gibt es nicht!</translation>
    </message>
    <message>
        <source>A share of undefined loci lies from 0 to below 1!</source>
        <translation>Ein Anteil nicht definierter Loci liegt von 0 bis unter 1!</translation>
    </message>
    <message>
        <source>There is no such way to count the undefined alleles of a sample!</source>
        <translation>Eine solche Zählung der nicht definierten Allele einer Stichprobe gibt es nicht!</translation>
    </message>
    <message>
        <source>These choices do not go together!</source>
        <translation>Diese Auswahl passt nicht zusammen!</translation>
    </message>
    <message>
        <source>There is no such form of export!</source>
        <translation>Eine solche Form des Exports gibt es nicht!</translation>
    </message>
    <message>
        <source>The export cannot be made!</source>
        <translation>Der Export ist nicht möglich!</translation>
    </message>
    <message>
        <source>A probability lies between 0 and 1!</source>
        <translation>Eine Wahrscheinlichkeit liegt zwischen 0 und 1!</translation>
    </message>
    <message>
        <source>Choose one file of parents, or one of males and one of females!</source>
        <translation>Wählen Sie eine Datei der Eltern, oder je eine der Männchen und der Weibchen!</translation>
    </message>
    <message>
        <source>Choose options for parents, or with --sexed for males and females!</source>
        <translation>Wählen Sie Optionen für Eltern, oder mit --sexed für Männchen und Weibchen!</translation>
    </message>
    <message>
        <source>Choose collected or pseudo-collected parents!</source>
        <translation>Wählen Sie beprobte oder pseudo-beprobte Eltern!</translation>
    </message>
    <message>
        <source>The run would destroy one of its own input files!</source>
        <translation>Der Lauf würde eine seiner eigenen Eingabedateien zerstören!</translation>
    </message>
    <message>
        <source>%1 Choose another project name, or add --replace.</source>
        <translation>%1 Wählen Sie einen anderen Projektnamen, oder fügen Sie --replace hinzu.</translation>
    </message>
    <message>
        <source>The unfinished run cannot be resumed!</source>
        <translation>Der unfertige Lauf lässt sich nicht fortsetzen!</translation>
    </message>
    <message>
        <source>This is not a run record!</source>
        <translation>Dies ist kein Laufprotokoll!</translation>
    </message>
    <message>
        <source>This run record cannot be used!</source>
        <translation>Dieses Laufprotokoll lässt sich nicht verwenden!</translation>
    </message>
    <message>
        <source>An input file has changed since the recorded run!</source>
        <translation>Eine Eingabedatei hat sich seit dem aufgezeichneten Lauf geändert!</translation>
    </message>
    <message>
        <source>The run may differ from the recorded one.</source>
        <translation>Der Lauf kann vom aufgezeichneten abweichen.</translation>
    </message>
    <message>
        <source>Reading the files</source>
        <translation>Dateien werden gelesen</translation>
    </message>
    <message>
        <source>Allocating</source>
        <translation>Nachkommen werden zugeordnet</translation>
    </message>
    <message>
        <source>Weighing the evidence</source>
        <translation>Belege werden gewogen</translation>
    </message>
    <message>
        <source>Simulating</source>
        <translation>Es wird simuliert</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Einstellungen werden durchprobiert</translation>
    </message>
    <message>
        <source>Scoring how sure the allocations are</source>
        <translation>Die Sicherheit der Zuordnungen wird bewertet</translation>
    </message>
    <message>
        <source>Writing the transmission matrices</source>
        <translation>Übertragungsmatrizen werden geschrieben</translation>
    </message>
    <message>
        <source>Writing the reports</source>
        <translation>Berichte werden geschrieben</translation>
    </message>
    <message>
        <source>Reading the results</source>
        <translation>Ergebnisse werden gelesen</translation>
    </message>
    <message>
        <source>subset %1 of %2</source>
        <translation>Teilmenge %1 von %2</translation>
    </message>
    <message>
        <source>Stopped. The results of earlier runs are as they were.</source>
        <translation>Angehalten. Die Ergebnisse früherer Läufe sind, wie sie waren.</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 Wörter</translation>
    </message>
    <message>
        <source>%1 word</source>
        <translation>%1 Wort</translation>
    </message>
    <message>
        <source>%1 individuals</source>
        <translation>%1 Individuen</translation>
    </message>
    <message>
        <source>%1 individual</source>
        <translation>%1 Individuum</translation>
    </message>
    <message>
        <source>%1 individuals in %2 groups</source>
        <translation>%1 Individuen in %2 Gruppen</translation>
    </message>
    <message>
        <source>%1 individuals in %2 groups (%3 empty)</source>
        <translation>%1 Individuen in %2 Gruppen (%3 leer)</translation>
    </message>
    <message>
        <source>%1 individual in %2 groups</source>
        <translation>%1 Individuum in %2 Gruppen</translation>
    </message>
    <message>
        <source>%1 loci</source>
        <translation>%1 Loci</translation>
    </message>
    <message>
        <source>%1 locus</source>
        <translation>%1 Locus</translation>
    </message>
    <message>
        <source>%1 digits per field</source>
        <translation>%1 Ziffern je Feld</translation>
    </message>
    <message>
        <source>no missing genotypes</source>
        <translation>keine fehlenden Genotypen</translation>
    </message>
    <message>
        <source>%1 missing genotypes</source>
        <translation>%1 fehlende Genotypen</translation>
    </message>
    <message>
        <source>%1 missing genotype</source>
        <translation>%1 fehlender Genotyp</translation>
    </message>
    <message>
        <source>names twice: %1</source>
        <translation>Namen doppelt: %1</translation>
    </message>
    <message>
        <source>name twice: %1</source>
        <translation>Name doppelt: %1</translation>
    </message>
    <message>
        <source>%1 loci: %2</source>
        <translation>%1 Loci: %2</translation>
    </message>
    <message>
        <source>%1 locus: %2</source>
        <translation>%1 Locus: %2</translation>
    </message>
    <message>
        <source>%1 populations</source>
        <translation>%1 Populationen</translation>
    </message>
    <message>
        <source>%1 population</source>
        <translation>%1 Population</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>choose the names-of-loci file to see what is in it</source>
        <translation>wählen Sie die Datei der Namen der Loci, um zu sehen, was darin steht</translation>
    </message>
    <message>
        <source>correct the names-of-loci file to see what is in it</source>
        <translation>berichtigen Sie die Datei der Namen der Loci, um zu sehen, was darin steht</translation>
    </message>
    <message>
        <source>a table of loci</source>
        <translation>eine Tabelle von Loci</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>no individual, only separators</source>
        <translation>kein Individuum, nur Trennzeilen</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 words left over, see line %3</source>
        <translation>die Anzahl der Wörter passt nicht zu %1 Loci: %2 Wörter übrig, siehe Zeile %3</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 word left over, see line %3</source>
        <translation>die Anzahl der Wörter passt nicht zu %1 Loci: %2 Wort übrig, siehe Zeile %3</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 words left over</source>
        <translation>die Anzahl der Wörter passt nicht zu %1 Loci: %2 Wörter übrig</translation>
    </message>
    <message>
        <source>line %1 does not hold a name and %2 genotypes</source>
        <translation>Zeile %1 besteht nicht aus einem Namen und %2 Genotypen</translation>
    </message>
    <message>
        <source>%1 is no genotype, see line %2</source>
        <translation>%1 ist kein Genotyp, siehe Zeile %2</translation>
    </message>
    <message>
        <source>%1 fields are no genotypes, first %2 in line %3</source>
        <translation>%1 Felder sind keine Genotypen, zuerst %2 in Zeile %3</translation>
    </message>
    <message>
        <source>fields of %1 and %2 digits, see line %3</source>
        <translation>Felder mit %1 und %2 Ziffern, siehe Zeile %3</translation>
    </message>
    <message>
        <source>fields of %1 to %2 digits, see line %3</source>
        <translation>Felder mit %1 bis %2 Ziffern, siehe Zeile %3</translation>
    </message>
    <message>
        <source>%1 digits per field: both alleles need the same number of digits</source>
        <translation>%1 Ziffern je Feld: beide Allele brauchen gleich viele Ziffern</translation>
    </message>
    <message>
        <source>%1 digit per field: both alleles need the same number of digits</source>
        <translation>%1 Ziffer je Feld: beide Allele brauchen gleich viele Ziffern</translation>
    </message>
    <message>
        <source>%1 digits per field: an allele has at most %2</source>
        <translation>%1 Ziffern je Feld: ein Allel hat höchstens %2</translation>
    </message>
    <message>
        <source>%1 genotypes with only one allele defined, first %2 in line %3</source>
        <translation>%1 Genotypen mit nur einem definierten Allel, zuerst %2 in Zeile %3</translation>
    </message>
    <message>
        <source>%1 genotype with only one allele defined, first %2 in line %3</source>
        <translation>%1 Genotyp mit nur einem definierten Allel, zuerst %2 in Zeile %3</translation>
    </message>
    <message>
        <source>%1 names of more than %2 characters, first in line %3</source>
        <translation>%1 Namen mit mehr als %2 Zeichen, zuerst in Zeile %3</translation>
    </message>
    <message>
        <source>%1 name of more than %2 characters, first in line %3</source>
        <translation>%1 Name mit mehr als %2 Zeichen, zuerst in Zeile %3</translation>
    </message>
    <message>
        <source>more than %1 individuals: %2</source>
        <translation>mehr als %1 Individuen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds the results of another flow (%2, of %3).</source>
        <translation>„%1“ enthält die Ergebnisse eines anderen Ablaufs (%2, vom %3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds an unfinished run (%2, of %3).</source>
        <translation>„%1“ enthält einen unfertigen Lauf (%2, vom %3).</translation>
    </message>
    <message>
        <source>No Error</source>
        <translation>Kein Fehler</translation>
    </message>
    <message>
        <source>Uniform (epsilon %1)</source>
        <translation>Gleichverteilt (Epsilon %1)</translation>
    </message>
    <message>
        <source>Non Uniform (%1)</source>
        <translation>Nicht gleichverteilt (%1)</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>keines gewählt</translation>
    </message>
    <message>
        <source>%1 of %2 offspring have both parents in your files</source>
        <translation>%1 von %2 Nachkommen haben beide Eltern in Ihren Dateien</translation>
    </message>
    <message>
        <source>%1 of %2 offspring has both parents in your files</source>
        <translation>%1 von %2 Nachkommen hat beide Eltern in Ihren Dateien</translation>
    </message>
    <message>
        <source>none needs a look</source>
        <translation>keiner braucht einen zweiten Blick</translation>
    </message>
    <message>
        <source>%1 needs a look</source>
        <translation>%1 braucht einen zweiten Blick</translation>
    </message>
    <message>
        <source>%1 need a look</source>
        <translation>%1 brauchen einen zweiten Blick</translation>
    </message>
    <message>
        <source>%1 of %2 offspring are allocated to two collected parents; how sure that is was not computed.</source>
        <translation>%1 von %2 Nachkommen sind zwei beprobten Eltern zugeordnet; wie sicher das ist, wurde nicht berechnet.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring is allocated to two collected parents; how sure that is was not computed.</source>
        <translation>%1 von %2 Nachkommen ist zwei beprobten Eltern zugeordnet; wie sicher das ist, wurde nicht berechnet.</translation>
    </message>
    <message>
        <source>%1 has a probability of %2 only</source>
        <translation>%1 hat nur eine Wahrscheinlichkeit von %2</translation>
    </message>
    <message>
        <source>no locus is typed</source>
        <translation>kein Locus ist typisiert</translation>
    </message>
    <message>
        <source>no explanation is possible</source>
        <translation>keine Erklärung ist möglich</translation>
    </message>
    <message>
        <source>the results are more probably wrong than right</source>
        <translation>die Ergebnisse sind eher falsch als richtig</translation>
    </message>
    <message>
        <source>a parent is open</source>
        <translation>ein Elternteil ist offen</translation>
    </message>
    <message>
        <source>CM, CF: to a collected male or female. UCM, UCF: taken as uncollected.</source>
        <translation>CM, CF: zu einem beprobten Männchen oder Weibchen. UCM, UCF: gilt als unbeprobt.</translation>
    </message>
    <message>
        <source>C: to a collected parent. UC: taken as uncollected.</source>
        <translation>C: zu einem beprobten Elternteil. UC: gilt als unbeprobt.</translation>
    </message>
    <message>
        <source>sides collected</source>
        <translation>beprobte Seiten</translation>
    </message>
    <message>
        <source>collected male</source>
        <translation>beprobtes Männchen</translation>
    </message>
    <message>
        <source>collected female</source>
        <translation>beprobtes Weibchen</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>sicher</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>wahrscheinlich</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>not collected</source>
        <translation>nicht beprobt</translation>
    </message>
    <message>
        <source>named</source>
        <translation>benannt</translation>
    </message>
    <message>
        <source>uncollected</source>
        <translation>unbeprobt</translation>
    </message>
    <message>
        <source>both parents named, each at 0.95 or more</source>
        <translation>beide Eltern benannt, jeder mit 0.95 oder mehr</translation>
    </message>
    <message>
        <source>none open, one named below 0.95</source>
        <translation>keiner offen, einer unter 0.95 benannt</translation>
    </message>
    <message>
        <source>a parent cannot be told</source>
        <translation>ein Elternteil lässt sich nicht bestimmen</translation>
    </message>
    <message>
        <source>a parent is not in your files, the other is sure or not in them either</source>
        <translation>ein Elternteil steht nicht in Ihren Dateien, der andere ist sicher oder steht auch nicht darin</translation>
    </message>
    <message>
        <source>Effective number of breeders: none, because no parent is named for two offspring.</source>
        <translation>Effektive Zahl der Elterntiere: keine, weil kein Elternteil für zwei Nachkommen benannt ist.</translation>
    </message>
    <message>
        <source>%1 pairs</source>
        <translation>%1 Paare</translation>
    </message>
    <message>
        <source>%1 pair</source>
        <translation>%1 Paar</translation>
    </message>
    <message>
        <source>%1 of %2 sides</source>
        <translation>%1 von %2 Seiten</translation>
    </message>
    <message>
        <source>%1 more share one named parent, and whether they share the other one is open</source>
        <translation>%1 weitere teilen einen benannten Elternteil, und ob sie den anderen teilen, ist offen</translation>
    </message>
    <message>
        <source>locus</source>
        <translation>Locus</translation>
    </message>
    <message>
        <source>alleles</source>
        <translation>Allele</translation>
    </message>
    <message>
        <source>unit distance</source>
        <translation>Einheitsabstand</translation>
    </message>
    <message>
        <source>in step</source>
        <translation>schrittgenau</translation>
    </message>
    <message>
        <source>typed parents</source>
        <translation>typisierte Eltern</translation>
    </message>
    <message>
        <source>typed offspring</source>
        <translation>typisierte Nachkommen</translation>
    </message>
    <message>
        <source>observed heterozygosity</source>
        <translation>beobachtete Heterozygotie</translation>
    </message>
    <message>
        <source>expected heterozygosity</source>
        <translation>erwartete Heterozygotie</translation>
    </message>
    <message>
        <source>pic</source>
        <translation>PIC</translation>
    </message>
    <message>
        <source>exclusion one parent</source>
        <translation>Ausschluss ein Elternteil</translation>
    </message>
    <message>
        <source>exclusion second parent</source>
        <translation>Ausschluss zweiter Elternteil</translation>
    </message>
    <message>
        <source>exclusion pair</source>
        <translation>Ausschluss Paar</translation>
    </message>
    <message>
        <source>homozygote mismatches</source>
        <translation>unpassende Homozygote</translation>
    </message>
    <message>
        <source>null allele frequency</source>
        <translation>Frequenz von Nullallelen</translation>
    </message>
    <message>
        <source>error rate</source>
        <translation>Fehlerrate</translation>
    </message>
    <message>
        <source> (results for the last combination of loci only)</source>
        <translation> (Ergebnisse nur der letzten Kombination von Loci)</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>male</source>
        <translation>Männchen</translation>
    </message>
    <message>
        <source>female</source>
        <translation>Weibchen</translation>
    </message>
    <message>
        <source>any allocation</source>
        <translation>beliebige Zuordnung</translation>
    </message>
    <message>
        <source>allocation to a collected parent</source>
        <translation>Zuordnung zu einem beprobten Elternteil</translation>
    </message>
    <message>
        <source>allocation to a collected male</source>
        <translation>Zuordnung zu einem beprobten Männchen</translation>
    </message>
    <message>
        <source>allocation to a collected female</source>
        <translation>Zuordnung zu einem beprobten Weibchen</translation>
    </message>
    <message>
        <source>allocation to an uncollected parent (UC)</source>
        <translation>Zuordnung zu einem unbeprobten Elternteil (UC)</translation>
    </message>
    <message>
        <source>in the population</source>
        <translation>in der Population</translation>
    </message>
    <message>
        <source>of these pseudo-offspring</source>
        <translation>dieser Pseudo-Nachkommen</translation>
    </message>
    <message>
        <source>TWO COLLECTED OR PSEUDO-COLLECTED PARENTS</source>
        <translation>ZWEI BEPROBTE ODER PSEUDO-BEPROBTE ELTERN</translation>
    </message>
    <message>
        <source>ONE COLLECTED OR PSEUDO-COLLECTED PARENT</source>
        <translation>EIN BEPROBTER ODER PSEUDO-BEPROBTER ELTERNTEIL</translation>
    </message>
    <message>
        <source>ZERO COLLECTED OR PSEUDO-COLLECTED PARENT</source>
        <translation>KEIN BEPROBTER ODER PSEUDO-BEPROBTER ELTERNTEIL</translation>
    </message>
    <message>
        <source>the classes weighed by their share in the population</source>
        <translation>die Klassen, gewichtet mit ihrem Anteil in der Population</translation>
    </message>
    <message>
        <source>pseudo-offspring from a (pseudo)collected male and a (pseudo)collected female</source>
        <translation>Pseudo-Nachkommen eines (pseudo)beprobten Männchens und eines (pseudo)beprobten Weibchens</translation>
    </message>
    <message>
        <source>pseudo-offspring from a (pseudo)collected male and a uncollected female</source>
        <translation>Pseudo-Nachkommen eines (pseudo)beprobten Männchens und eines unbeprobten Weibchens</translation>
    </message>
    <message>
        <source>pseudo-offspring from an uncollected male and a (pseudo)collected female</source>
        <translation>Pseudo-Nachkommen eines unbeprobten Männchens und eines (pseudo)beprobten Weibchens</translation>
    </message>
    <message>
        <source>pseudo-offspring from an uncollected male and an uncollected female</source>
        <translation>Pseudo-Nachkommen eines unbeprobten Männchens und eines unbeprobten Weibchens</translation>
    </message>
    <message>
        <source>all pseudo-offspring together</source>
        <translation>alle Pseudo-Nachkommen zusammen</translation>
    </message>
    <message>
        <source>The pseudo-offspring hold errors and were allocated as if they held none: the figures describe strict exclusion, not an allocation with an error model, which %1 simulates.</source>
        <translation>Die Pseudo-Nachkommen enthalten Fehler und wurden zugeordnet, als enthielten sie keine: die Zahlen beschreiben strengen Ausschluss, nicht eine Zuordnung mit einem Fehlermodell; diese simuliert %1.</translation>
    </message>
    <message>
        <source>How many parents were not collected is not known: this run computed no probabilities.</source>
        <translation>Wie viele Eltern nicht beprobt wurden, ist nicht bekannt: dieser Lauf berechnete keine Wahrscheinlichkeiten.</translation>
    </message>
    <message>
        <source>Simulations have no groups of parents, as the parents of this run have.</source>
        <translation>Simulationen kennen keine Gruppen von Eltern, wie sie die Eltern dieses Laufs haben.</translation>
    </message>
    <message>
        <source>This looks like %1</source>
        <translation>Dies sieht aus wie %1</translation>
    </message>
    <message>
        <source>By the named parents %1 of offspring are full sibs and %2 half sibs, from %3 of parents</source>
        <translation>Nach den benannten Eltern sind %1 von Nachkommen Vollgeschwister und %2 Halbgeschwister, von %3 von Eltern</translation>
    </message>
    <message>
        <source>Effective number of breeders: withheld, because only %1 are named; it takes %2 %.</source>
        <translation>Effektive Zahl der Elterntiere: zurückgehalten, weil nur %1 benannt sind; nötig sind %2 %.</translation>
    </message>
    <message>
        <source>Effective number of breeders: %1 (Waples and Waples 2011), from the %2 that are named; %3 left out.</source>
        <translation>Effektive Zahl der Elterntiere: %1 (Waples und Waples 2011), aus den %2, die benannt sind; %3 weggelassen.</translation>
    </message>
    <message>
        <source>A simulation like this run (%1 x %2 pseudo-offspring) estimates how probably allocations are right in the population: %3</source>
        <translation>Eine Simulation wie dieser Lauf (%1 x %2 Pseudo-Nachkommen) schätzt, wie wahrscheinlich Zuordnungen in der Population richtig sind: %3</translation>
    </message>
    <message>
        <source>%1 (standard error %2)</source>
        <translation>%1 (Standardfehler %2)</translation>
    </message>
    <message>
        <source>any allocation %1</source>
        <translation>beliebige Zuordnung %1</translation>
    </message>
    <message>
        <source>allocation to a collected parent %1</source>
        <translation>Zuordnung zu einem beprobten Elternteil %1</translation>
    </message>
    <message>
        <source>allocation to a collected male %1</source>
        <translation>Zuordnung zu einem beprobten Männchen %1</translation>
    </message>
    <message>
        <source>allocation to a collected female %1</source>
        <translation>Zuordnung zu einem beprobten Weibchen %1</translation>
    </message>
    <message>
        <source>allocation to an uncollected parent (UC) %1</source>
        <translation>Zuordnung zu einem unbeprobten Elternteil (UC) %1</translation>
    </message>
    <message>
        <source>Parents with the same first 10 characters of their names are taken for one individual, so that equally likely pairs with them are not listed.</source>
        <translation>Eltern, deren Namen in den ersten 10 Zeichen gleich sind, gelten als ein Individuum, so dass gleich wahrscheinliche Paare mit ihnen nicht aufgeführt werden.</translation>
    </message>
    <message>
        <source>Two records have the same name.</source>
        <translation>Zwei Einträge haben denselben Namen.</translation>
    </message>
    <message>
        <source>An individual stands among the parents and among the offspring.</source>
        <translation>Ein Individuum steht unter den Eltern und unter den Nachkommen.</translation>
    </message>
    <message>
        <source>Two individuals have the same genotypes at all loci in use.</source>
        <translation>Zwei Individuen haben an allen verwendeten Loci dieselben Genotypen.</translation>
    </message>
    <message>
        <source>The name of an offspring is also a sign for a parent that is not there.</source>
        <translation>Der Name eines Nachkommen ist auch ein Zeichen für einen fehlenden Elternteil.</translation>
    </message>
    <message>
        <source>A spreadsheet would change a name.</source>
        <translation>Eine Tabellenkalkulation würde einen Namen verändern.</translation>
    </message>
    <message>
        <source>A negative probability has no meaning; the run uses it as it stands.</source>
        <translation>Eine negative Wahrscheinlichkeit hat keine Bedeutung; der Lauf verwendet sie, wie sie ist.</translation>
    </message>
    <message>
        <source>Alleles with few digits are drawn coarsely: rare alleles and rare errors are lost. --random modern draws them all.</source>
        <translation>Allele mit wenigen Ziffern werden grob gezogen: seltene Allele und seltene Fehler gehen verloren. --random modern zieht sie alle.</translation>
    </message>
    <message>
        <source>The run takes more random numbers than there are before they repeat. --random modern has enough.</source>
        <translation>Der Lauf braucht mehr Zufallszahlen, als es gibt, bevor sie sich wiederholen. --random modern hat genug.</translation>
    </message>
    <message>
        <source>An option has no effect.</source>
        <translation>Eine Option hat keine Wirkung.</translation>
    </message>
    <message>
        <source>Undefined alleles of a sample count for its first allele, whose frequency they raise.</source>
        <translation>Nicht definierte Allele einer Stichprobe zählen für ihr erstes Allel, dessen Frequenz sie erhöhen.</translation>
    </message>
    <message>
        <source>&amp;Copy the folder</source>
        <translation>Ordner &amp;kopieren</translation>
    </message>
    <message>
        <source>type, browse or drop a file here</source>
        <translation>Datei eintippen, auswählen oder hierher ziehen</translation>
    </message>
    <message>
        <source>Convert...</source>
        <translation>Umwandeln...</translation>
    </message>
    <message>
        <source>Convert: %1</source>
        <translation>Umwandeln: %1</translation>
    </message>
    <message>
        <source>Make files that a run takes of this file of another program</source>
        <translation>Macht aus dieser Datei eines anderen Programms Dateien, die ein Lauf annimmt</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Browse for: %1</source>
        <translation>Durchsuchen: %1</translation>
    </message>
    <message>
        <source>Look for the file in the folders of this computer</source>
        <translation>Die Datei in den Ordnern dieses Rechners suchen</translation>
    </message>
    <message>
        <source>Text files (.txt) (*.txt);;Files of other programs (*.gen *.csv *.tsv *.xlsx *.dat *.str *.txt);;All files (*)</source>
        <translation>Textdateien (.txt) (*.txt);;Dateien anderer Programme (*.gen *.csv *.tsv *.xlsx *.dat *.str *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>One file at a time can be dropped here.</source>
        <translation>Hier lässt sich immer nur eine Datei ablegen.</translation>
    </message>
    <message>
        <source>Cop&amp;y as command</source>
        <translation>Als &amp;Befehl kopieren</translation>
    </message>
    <message>
        <source>Copy the command line that does the same run, for a script or a cluster</source>
        <translation>Kopiert die Befehlszeile, die denselben Lauf macht, für ein Skript oder einen Cluster</translation>
    </message>
    <message>
        <source>&lt;---  Back</source>
        <translation>&lt;---  Zurück</translation>
    </message>
    <message>
        <source>To the screen before; what was typed stays</source>
        <translation>Zum vorigen Bildschirm; was eingegeben wurde, bleibt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check this screen and go on</source>
        <translation>Diesen Bildschirm prüfen und weitergehen</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>Ergebnisse gehen nach %1</translation>
    </message>
    <message>
        <source>The results of %1 will be replaced.</source>
        <translation>Die Ergebnisse vom %1 werden ersetzt.</translation>
    </message>
    <message>
        <source>The button &quot;Convert...&quot; below its field makes files of it that a run takes.</source>
        <translation>Der Knopf „Umwandeln...“ unter ihrem Feld macht daraus Dateien, die ein Lauf annimmt.</translation>
    </message>
    <message>
        <source>Replace them?</source>
        <translation>Sollen sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Go on with it? With No this run begins anew.</source>
        <translation>Soll er fortgesetzt werden? Mit Nein beginnt dieser Lauf von vorn.</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>What the files were written for; recognised by what they hold.</source>
        <translation>Wofür die Dateien geschrieben wurden; an ihrem Inhalt erkannt.</translation>
    </message>
    <message>
        <source>&amp;Populations of offspring</source>
        <translation>&amp;Populationen der Nachkommen</translation>
    </message>
    <message>
        <source>Tick the populations whose members are offspring; all others are parents.</source>
        <translation>Haken Sie die Populationen an, deren Mitglieder Nachkommen sind; alle anderen sind Eltern.</translation>
    </message>
    <message>
        <source>Parents with undefined loci</source>
        <translation>Eltern mit nicht definierten Loci</translation>
    </message>
    <message>
        <source>Repeat lengths</source>
        <translation>Repeat-Längen</translation>
    </message>
    <message>
        <source>Loci whose alleles count repeats, with the length of a repeat in base pairs: Ssa85=4, Ssa197=2</source>
        <translation>Loci, deren Allele Repeats zählen, mit der Länge eines Repeats in Basenpaaren: Ssa85=4, Ssa197=2</translation>
    </message>
    <message>
        <source>Missing code</source>
        <translation>Fehlzeichen</translation>
    </message>
    <message>
        <source>One more word for an allele that was not typed, beside 0, -9, NA and the like.</source>
        <translation>Ein weiteres Wort für ein nicht typisiertes Allel, neben 0, -9, NA und ähnlichen.</translation>
    </message>
    <message>
        <source>Loci to keep</source>
        <translation>Zu behaltende Loci</translation>
    </message>
    <message>
        <source>Names between commas; empty: all loci.</source>
        <translation>Namen zwischen Kommas; leer: alle Loci.</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>The sheet of a workbook; empty: the first one.</source>
        <translation>Das Blatt einer Arbeitsmappe; leer: das erste.</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Spalte der Namen</translation>
    </message>
    <message>
        <source>The column that names the individuals.</source>
        <translation>Die Spalte, die die Individuen benennt.</translation>
    </message>
    <message>
        <source>Column of sexes</source>
        <translation>Spalte der Geschlechter</translation>
    </message>
    <message>
        <source>m, male, 1 or f, female, 2.</source>
        <translation>m, male, 1 oder f, female, 2.</translation>
    </message>
    <message>
        <source>Column of populations</source>
        <translation>Spalte der Populationen</translation>
    </message>
    <message>
        <source>Populations of parents become groups.</source>
        <translation>Populationen von Eltern werden zu Gruppen.</translation>
    </message>
    <message>
        <source>Column of roles</source>
        <translation>Spalte der Rollen</translation>
    </message>
    <message>
        <source>The column that says parent or offspring.</source>
        <translation>Die Spalte, in der steht, wer Elternteil (parent) und wer Nachkomme (offspring) ist.</translation>
    </message>
    <message>
        <source>Rows per individual</source>
        <translation>Zeilen je Individuum</translation>
    </message>
    <message>
        <source>How many rows of the file an individual has.</source>
        <translation>Wie viele Zeilen der Datei ein Individuum hat.</translation>
    </message>
    <message>
        <source>Before the genotypes</source>
        <translation>Vor den Genotypen</translation>
    </message>
    <message>
        <source>What stands there in each row, between commas: id, group, sex, role, other.</source>
        <translation>Was dort in jeder Zeile steht, zwischen Kommas: id, group, sex, role, other.</translation>
    </message>
    <message>
        <source>Populations do not become groups</source>
        <translation>Populationen werden nicht zu Gruppen</translation>
    </message>
    <message>
        <source>All parents may meet, whatever population they are from.</source>
        <translation>Alle Eltern können sich begegnen, aus welcher Population sie auch sind.</translation>
    </message>
    <message>
        <source>Refuse repeated names</source>
        <translation>Doppelte Namen zurückweisen</translation>
    </message>
    <message>
        <source>Individuals without a name, or with that of another, are a fault; else they are named by population and row.</source>
        <translation>Individuen ohne Namen oder mit dem eines anderen sind ein Fehler; sonst werden sie nach Population und Zeile benannt.</translation>
    </message>
    <message>
        <source>Refuse half a genotype</source>
        <translation>Halbe Genotypen zurückweisen</translation>
    </message>
    <message>
        <source>A genotype of which one allele is missing is a fault; else it counts as not typed.</source>
        <translation>Ein Genotyp, dem ein Allel fehlt, ist ein Fehler; sonst gilt er als nicht typisiert.</translation>
    </message>
    <message>
        <source>The first individuals, locus by locus</source>
        <translation>Die ersten Individuen, Locus für Locus</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>who</source>
        <translation>wer</translation>
    </message>
    <message>
        <source>population</source>
        <translation>Population</translation>
    </message>
    <message>
        <source>Convert files of another program</source>
        <translation>Dateien eines anderen Programms umwandeln</translation>
    </message>
    <message>
        <source>What is to be settled, and what was found</source>
        <translation>Was zu klären ist und was gefunden wurde</translation>
    </message>
    <message>
        <source>Everything at once, with file, line and cell; can be copied</source>
        <translation>Alles auf einmal, mit Datei, Zeile und Zelle; lässt sich kopieren</translation>
    </message>
    <message>
        <source>&amp;The first individuals</source>
        <translation>Die &amp;ersten Individuen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Choose a folder that is there already</source>
        <translation>Einen Ordner wählen, den es schon gibt</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message>
        <source>Write the files and fill in the fields of the flow</source>
        <translation>Schreibt die Dateien und füllt die Felder des Ablaufs aus</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back to the flow; nothing is written (Esc)</source>
        <translation>Zurück zum Ablauf; nichts wird geschrieben (Esc)</translation>
    </message>
    <message>
        <source>Name a file to be converted.</source>
        <translation>Nennen Sie eine Datei zum Umwandeln.</translation>
    </message>
    <message>
        <source>Name the folder for the converted files.</source>
        <translation>Nennen Sie den Ordner für die umgewandelten Dateien.</translation>
    </message>
    <message>
        <source>&quot;Import report.txt&quot; in the folder will tell all that is done.</source>
        <translation>„Import report.txt“ in dem Ordner wird alles aufführen, was getan wird.</translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Warnung: </translation>
    </message>
    <message>
        <source>There are no offspring among them.</source>
        <translation>Es sind keine Nachkommen darunter.</translation>
    </message>
    <message>
        <source>Ready to convert.</source>
        <translation>Bereit zum Umwandeln.</translation>
    </message>
    <message>
        <source>To be settled first:</source>
        <translation>Zuerst zu klären:</translation>
    </message>
    <message>
        <source>Folder for the files</source>
        <translation>Ordner für die Dateien</translation>
    </message>
    <message>
        <source>These files are in the folder &quot;%1&quot; already and would be replaced or removed: %2. Go on?</source>
        <translation>Diese Dateien sind schon im Ordner „%1“ und würden ersetzt oder entfernt: %2. Weitermachen?</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Laufs</translation>
    </message>
    <message>
        <source>Stop; the results of earlier runs stay as they are</source>
        <translation>Anhalten; die Ergebnisse früherer Läufe bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>A run is going on. Stop it? The results of earlier runs stay as they are.</source>
        <translation>Ein Lauf ist im Gang. Soll er angehalten werden? Die Ergebnisse früherer Läufe bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Out of memory. The results of earlier runs are as they were.</source>
        <translation>Der Speicher reicht nicht. Die Ergebnisse früherer Läufe sind, wie sie waren.</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>The converted files have other loci than the names-of-loci file of this simulation, or in another order. Theirs are in &quot;%1&quot;: all files of a simulation need the same.</source>
        <translation>Die umgewandelten Dateien haben andere Loci als die Datei der Namen der Loci dieser Simulation, oder in anderer Reihenfolge. Ihre stehen in „%1“: alle Dateien einer Simulation brauchen dieselben.</translation>
    </message>
    <message>
        <source>&amp;Try it with example data</source>
        <translation>Mit Beispieldaten &amp;ausprobieren</translation>
    </message>
    <message>
        <source>Opens an allocation with the files of a made-up lake: press OK on its three screens to see a result</source>
        <translation>Öffnet eine Zuordnung mit den Dateien eines erfundenen Sees: drücken Sie auf ihren drei Bildschirmen OK, um ein Ergebnis zu sehen</translation>
    </message>
    <message>
        <source>On to the main menu</source>
        <translation>Weiter zum Hauptmenü</translation>
    </message>
    <message>
        <source>Results go to</source>
        <translation>Ergebnisse gehen nach</translation>
    </message>
    <message>
        <source>Working &amp;folder...</source>
        <translation>Arbeits&amp;ordner...</translation>
    </message>
    <message>
        <source>Choose where project folders are made</source>
        <translation>Wählen Sie, wo die Projektordner angelegt werden</translation>
    </message>
    <message>
        <source>Open &amp;run record...</source>
        <translation>Lauf&amp;protokoll öffnen...</translation>
    </message>
    <message>
        <source>Fill all screens as they were for an earlier run</source>
        <translation>Füllt alle Bildschirme aus, wie sie bei einem früheren Lauf waren</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>Be&amp;ispiele</translation>
    </message>
    <message>
        <source>Open a flow with the files of a made-up study</source>
        <translation>Öffnet einen Ablauf mit den Dateien einer erfundenen Studie</translation>
    </message>
    <message>
        <source>Allocation, &amp;non-sexed: a lake</source>
        <translation>Zuordnung, &amp;ohne Geschlecht: ein See</translation>
    </message>
    <message>
        <source>Allocation, &amp;sexed: two ponds</source>
        <translation>Zuordnung, &amp;mit Geschlecht: zwei Teiche</translation>
    </message>
    <message>
        <source>Simulations, n&amp;on-sexed: after netting the lake</source>
        <translation>Simulationen, oh&amp;ne Geschlecht: nach dem Fang im See</translation>
    </message>
    <message>
        <source>Simulations, s&amp;exed: before netting the ponds</source>
        <translation>Simulationen, mi&amp;t Geschlecht: vor dem Fang in den Teichen</translation>
    </message>
    <message>
        <source>A&amp;bout KALDO...</source>
        <translation>Ü&amp;ber KALDO...</translation>
    </message>
    <message>
        <source>Version, licence, how to cite</source>
        <translation>Version, Lizenz, wie man zitiert</translation>
    </message>
    <message>
        <source>&amp;Open results</source>
        <translation>Ergebnisse ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show the results of a finished run again, without running it</source>
        <translation>Zeigt die Ergebnisse eines fertigen Laufs wieder, ohne ihn neu zu rechnen</translation>
    </message>
    <message>
        <source>&amp;Another folder...</source>
        <translation>&amp;Anderer Ordner...</translation>
    </message>
    <message>
        <source>&amp;Forget these folders</source>
        <translation>Diese Ordner &amp;vergessen</translation>
    </message>
    <message>
        <source>Folder with the results of a run</source>
        <translation>Ordner mit den Ergebnissen eines Laufs</translation>
    </message>
    <message>
        <source>Open run record</source>
        <translation>Laufprotokoll öffnen</translation>
    </message>
    <message>
        <source>Run records (*.toml);;All files (*)</source>
        <translation>Laufprotokolle (*.toml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Working folder</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>Cannot use the folder %1</source>
        <translation>Der Ordner %1 lässt sich nicht verwenden</translation>
    </message>
    <message>
        <source>Made when the first screen of a flow is confirmed</source>
        <translation>Wird angelegt, wenn der erste Bildschirm eines Ablaufs bestätigt ist</translation>
    </message>
    <message>
        <source>Results are open. Close them, too? They stay in their folders and can be opened again.</source>
        <translation>Es sind Ergebnisse offen. Sollen sie mit geschlossen werden? Sie bleiben in ihren Ordnern und lassen sich wieder öffnen.</translation>
    </message>
    <message>
        <source>The numbers of groups differ: %1 of males, %2 of females. No run can start.</source>
        <translation>Die Anzahlen der Gruppen sind verschieden: %1 der Männchen, %2 der Weibchen. Kein Lauf kann beginnen.</translation>
    </message>
    <message>
        <source>   &amp;All loci                </source>
        <translation>   &amp;Alle Loci                </translation>
    </message>
    <message>
        <source>Every locus takes part, whatever is marked in its row.</source>
        <translation>Jeder Locus nimmt teil, was auch in seiner Zeile angehakt ist.</translation>
    </message>
    <message>
        <source>  Print  </source>
        <translation>  Ausgeben  </translation>
    </message>
    <message>
        <source>  Keep in file  </source>
        <translation>  Als Datei behalten  </translation>
    </message>
    <message>
        <source>  Random numbers  </source>
        <translation>  Zufallszahlen  </translation>
    </message>
    <message>
        <source>calendar time</source>
        <translation>Kalenderzeit</translation>
    </message>
    <message>
        <source>%1 is not a whole number from 0 to 4294967295</source>
        <translation>%1 ist keine ganze Zahl von 0 bis 4294967295</translation>
    </message>
    <message>
        <source>%1: %2 is not %3</source>
        <translation>%1: %2 ist %3</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>a number with a decimal point</source>
        <translation>keine Zahl mit Dezimalpunkt</translation>
    </message>
    <message>
        <source>  Type of simulations  </source>
        <translation>  Art der Simulationen  </translation>
    </message>
    <message>
        <source>     Simulations run with :     </source>
        <translation>     Simulationen rechnen mit :     </translation>
    </message>
    <message>
        <source>C&amp;hoose loci...</source>
        <translation>&amp;Loci auswählen...</translation>
    </message>
    <message>
        <source>Leave loci out of the subsets or of the sequence</source>
        <translation>Lässt Loci aus den Teilmengen oder aus der Folge weg</translation>
    </message>
    <message>
        <source>Subsets and sequences are formed from all %1 loci.</source>
        <translation>Teilmengen und Folgen werden aus allen %1 Loci gebildet.</translation>
    </message>
    <message>
        <source>Subsets and sequences are formed from %1 of %2 loci.</source>
        <translation>Teilmengen und Folgen werden aus %1 von %2 Loci gebildet.</translation>
    </message>
    <message>
        <source>the maximal offset tolerance is %1, which is no whole number</source>
        <translation>die maximale Versatztoleranz ist %1, keine ganze Zahl</translation>
    </message>
    <message>
        <source>  Allocation of the pseudo-offspring  </source>
        <translation>  Zuordnung der Pseudo-Nachkommen  </translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>Vor&amp;heriger</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Näch&amp;ster</translation>
    </message>
    <message>
        <source>The loci in use.</source>
        <translation>Die verwendeten Loci.</translation>
    </message>
    <message>
        <source>To the locus before, in the order of the names-of-loci file</source>
        <translation>Zum vorigen Locus, in der Reihenfolge der Datei der Namen der Loci</translation>
    </message>
    <message>
        <source>To the next locus, in the order of the names-of-loci file</source>
        <translation>Zum nächsten Locus, in der Reihenfolge der Datei der Namen der Loci</translation>
    </message>
    <message>
        <source>Loc&amp;us:</source>
        <translation>Loc&amp;us:</translation>
    </message>
    <message>
        <source>%1 gene copies typed in parents and offspring together, of %2.</source>
        <translation>%1 typisierte Genkopien von Eltern und Nachkommen zusammen, von %2.</translation>
    </message>
    <message>
        <source>&amp;Offspring</source>
        <translation>&amp;Nachkommen</translation>
    </message>
    <message>
        <source>The parents of every offspring, and why, locus by locus.</source>
        <translation>Die Eltern jedes Nachkommen, und warum, Locus für Locus.</translation>
    </message>
    <message>
        <source>&amp;Parents</source>
        <translation>&amp;Eltern</translation>
    </message>
    <message>
        <source>The offspring and mates of every collected parent, and who has none.</source>
        <translation>Die Nachkommen und Partner jedes beprobten Elternteils, und wer keine hat.</translation>
    </message>
    <message>
        <source>Se&amp;quence</source>
        <translation>Fol&amp;ge</translation>
    </message>
    <message>
        <source>How the proportions settle as loci are added.</source>
        <translation>Wie sich die Anteile einstellen, wenn Loci hinzukommen.</translation>
    </message>
    <message>
        <source>&amp;Alleles</source>
        <translation>&amp;Allele</translation>
    </message>
    <message>
        <source>The allele frequencies of each locus.</source>
        <translation>Die Allelfrequenzen jedes Locus.</translation>
    </message>
    <message>
        <source>Loc&amp;i</source>
        <translation>&amp;Loci</translation>
    </message>
    <message>
        <source>What each locus is worth, and what may be wrong with it.</source>
        <translation>Was jeder Locus wert ist, und was mit ihm nicht stimmen mag.</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>What was found, what to check, and what was run.</source>
        <translation>Was gefunden wurde, was zu prüfen ist und was gerechnet wurde.</translation>
    </message>
    <message>
        <source>mean + sd</source>
        <translation>Mittelwert + SD</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>mean - sd</source>
        <translation>Mittelwert - SD</translation>
    </message>
    <message>
        <source>Chart; its numbers stand in the table beside it.</source>
        <translation>Diagramm; seine Zahlen stehen in der Tabelle daneben.</translation>
    </message>
    <message>
        <source>A chart is saved as .svg, .pdf or .png, its numbers as .csv. &quot;%1&quot; has none of these endings.</source>
        <translation>Ein Diagramm wird als .svg, .pdf oder .png gespeichert, seine Zahlen als .csv. „%1“ hat keine dieser Endungen.</translation>
    </message>
    <message>
        <source>%1: UC, offset above the tolerance of %2 at %3.</source>
        <translation>%1: UC, Versatz über der Toleranz von %2 an %3.</translation>
    </message>
    <message>
        <source>%1: accepted, errors assumed: %2.</source>
        <translation>%1: angenommen, unterstellte Fehler: %2.</translation>
    </message>
    <message>
        <source>%1: accepted without errors.</source>
        <translation>%1: angenommen, ohne Fehler.</translation>
    </message>
    <message>
        <source>%1: accepted, offsets 0.</source>
        <translation>%1: angenommen, Versatz überall 0.</translation>
    </message>
    <message>
        <source>Choose an offspring in the table above.</source>
        <translation>Wählen Sie oben in der Tabelle einen Nachkommen.</translation>
    </message>
    <message>
        <source>No pair of collected parents can have produced %1 under the error model: both parents count as UC.</source>
        <translation>Kein Paar beprobter Eltern kann %1 unter dem Fehlermodell hervorgebracht haben: beide Eltern gelten als UC.</translation>
    </message>
    <message>
        <source>  An allele of the offspring is in neither parent at %1.</source>
        <translation>  Ein Allel des Nachkommen trägt kein Elternteil an %1.</translation>
    </message>
    <message>
        <source>Runner-up</source>
        <translation>Zweiter</translation>
    </message>
    <message>
        <source>or %1 (p %2)</source>
        <translation>oder %1 (p %2)</translation>
    </message>
    <message>
        <source>Locus</source>
        <translation>Locus</translation>
    </message>
    <message>
        <source>Unit (bp)</source>
        <translation>Einheit (bp)</translation>
    </message>
    <message>
        <source>Offset (units)</source>
        <translation>Versatz (Einheiten)</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Distance %1 (bp)</source>
        <translation>Abstand %1 (bp)</translation>
    </message>
    <message>
        <source>Offset %1 (units)</source>
        <translation>Versatz %1 (Einheiten)</translation>
    </message>
    <message>
        <source>The most probable other candidate, in the place of parent %1 beside the same mate.</source>
        <translation>Der wahrscheinlichste andere mögliche Elternteil, an der Stelle von Elternteil %1 neben demselben Partner.</translation>
    </message>
    <message>
        <source>Genotypes locus by locus</source>
        <translation>Genotypen Locus für Locus</translation>
    </message>
    <message>
        <source>Pairs that explain the offspring equally well. The first one decided.</source>
        <translation>Paare, die den Nachkommen gleich gut erklären. Das erste entschied.</translation>
    </message>
    <message>
        <source>Copy the selected loci, or all, with their heads.</source>
        <translation>Kopiert die gewählten Loci, oder alle, mit ihren Köpfen.</translation>
    </message>
    <message>
        <source>%1 of %2: %3 x %4</source>
        <translation>%1 von %2: %3 x %4</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>Files in &quot;%1&quot;:</source>
        <translation>Dateien in „%1“:</translation>
    </message>
    <message>
        <source>Export the results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
    <message>
        <source>Write the results in this form</source>
        <translation>Die Ergebnisse in dieser Form schreiben</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Einen anderen Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Write the files</source>
        <translation>Schreibt die Dateien</translation>
    </message>
    <message>
        <source>Nothing is written (Esc)</source>
        <translation>Nichts wird geschrieben (Esc)</translation>
    </message>
    <message>
        <source>Tick the forms in which the results are wanted.</source>
        <translation>Haken Sie die Formen an, in denen Sie die Ergebnisse wünschen.</translation>
    </message>
    <message>
        <source>These files are in the folder already and would be replaced: %1. Go on?</source>
        <translation>Diese Dateien sind schon in dem Ordner und würden ersetzt: %1. Weitermachen?</translation>
    </message>
    <message>
        <source>all offspring</source>
        <translation>alle Nachkommen</translation>
    </message>
    <message>
        <source>several pairs</source>
        <translation>mehrere Paare</translation>
    </message>
    <message>
        <source>no pair</source>
        <translation>kein Paar</translation>
    </message>
    <message>
        <source>to check</source>
        <translation>zu prüfen</translation>
    </message>
    <message>
        <source>A parent is open, or what the results say is less probable than not.</source>
        <translation>Ein Elternteil ist offen, oder was die Ergebnisse sagen, ist eher unwahrscheinlich.</translation>
    </message>
    <message>
        <source>offspring of %1</source>
        <translation>Nachkommen von %1</translation>
    </message>
    <message>
        <source>%1 of %2 offspring</source>
        <translation>%1 von %2 Nachkommen</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Export table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>&amp;Befehl kopieren</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Write the results for other programs: tables, a workbook, pedigrees</source>
        <translation>Schreibt die Ergebnisse für andere Programme: Tabellen, eine Arbeitsmappe, Stammbäume</translation>
    </message>
    <message>
        <source>HT&amp;ML report</source>
        <translation>HT&amp;ML-Bericht</translation>
    </message>
    <message>
        <source>Write the results as a page to read and print, and open it</source>
        <translation>Schreibt die Ergebnisse als Seite zum Lesen und Drucken und öffnet sie</translation>
    </message>
    <message>
        <source>%1 - %2 - results</source>
        <translation>%1 - %2 - Ergebnisse</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Show the reports of this run: %1</source>
        <translation>Zeigt die Berichte dieses Laufs: %1</translation>
    </message>
    <message>
        <source>Copy the command line that repeats this run, for a script or a colleague.</source>
        <translation>Kopiert die Befehlszeile, die diesen Lauf wiederholt, für ein Skript oder Kollegen.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close this window. The reports stay in their folder.</source>
        <translation>Schließt dieses Fenster. Die Berichte bleiben in ihrem Ordner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be opened.</source>
        <translation>Der Ordner „%1“ lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Aus&amp;wahl:</translation>
    </message>
    <message>
        <source>Copy the selected rows with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Kopiert die gewählten Zeilen mit ihren Köpfen, zum Einfügen in eine Tabellenkalkulation (Strg+C).</translation>
    </message>
    <message>
        <source>Save all rows shown, in their order, as comma-separated values.</source>
        <translation>Speichert alle gezeigten Zeilen, in ihrer Reihenfolge, als durch Kommas getrennte Werte.</translation>
    </message>
    <message>
        <source>What was simulated, and how often decisions were correct.</source>
        <translation>Was simuliert wurde, und wie oft Entscheidungen richtig waren.</translation>
    </message>
    <message>
        <source>S&amp;pread</source>
        <translation>Str&amp;euung</translation>
    </message>
    <message>
        <source>How much the share of correct decisions varies between iterations.</source>
        <translation>Wie sehr der Anteil richtiger Entscheidungen zwischen den Iterationen schwankt.</translation>
    </message>
    <message>
        <source>Every estimated probability that an allocation is correct, and how exact it is.</source>
        <translation>Jede geschätzte Wahrscheinlichkeit, dass eine Zuordnung richtig ist, und wie genau sie ist.</translation>
    </message>
    <message>
        <source>What each further locus adds.</source>
        <translation>Was jeder weitere Locus bringt.</translation>
    </message>
    <message>
        <source>Su&amp;bsets</source>
        <translation>Tei&amp;lmengen</translation>
    </message>
    <message>
        <source>Which loci, and how many, are enough.</source>
        <translation>Welche Loci, und wie viele, genügen.</translation>
    </message>
    <message>
        <source>The origin of the pseudo-offspring: which true parents are collected.</source>
        <translation>Die Herkunft der Pseudo-Nachkommen: welche wahren Eltern beprobt sind.</translation>
    </message>
    <message>
        <source>Cl&amp;ass:</source>
        <translation>&amp;Klasse:</translation>
    </message>
    <message>
        <source>Correct decisions by iteration: %1%2</source>
        <translation>Richtige Entscheidungen nach Iteration: %1%2</translation>
    </message>
    <message>
        <source>iteration</source>
        <translation>Iteration</translation>
    </message>
    <message>
        <source>mean %1, sd %2 (%3; %4 pseudo-offspring per iteration)</source>
        <translation>Mittelwert %1, SD %2 (%3; %4 Pseudo-Nachkommen je Iteration)</translation>
    </message>
    <message>
        <source>NA: the class has no pseudo-offspring (%1)</source>
        <translation>NA: die Klasse hat keine Pseudo-Nachkommen (%1)</translation>
    </message>
    <message>
        <source>★ best of %1</source>
        <translation>★ beste mit %1</translation>
    </message>
    <message>
        <source>Loci</source>
        <translation>Loci</translation>
    </message>
    <message>
        <source>Any correct</source>
        <translation>Beliebige richtig</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Place in the order of the run.</source>
        <translation>Platz in der Reihenfolge des Laufs.</translation>
    </message>
    <message>
        <source>Place when the subset with which allocations are most often correct comes first; of equals that of fewer loci.</source>
        <translation>Platz, wenn die Teilmenge, mit der Zuordnungen am häufigsten richtig sind, zuerst steht; bei gleichen die mit weniger Loci.</translation>
    </message>
    <message>
        <source>Number of loci.</source>
        <translation>Anzahl der Loci.</translation>
    </message>
    <message>
        <source>Estimated probability that any allocation is correct, in the population.</source>
        <translation>Geschätzte Wahrscheinlichkeit, dass eine beliebige Zuordnung richtig ist, in der Population.</translation>
    </message>
    <message>
        <source>Standard error of the estimated probability.</source>
        <translation>Standardfehler der geschätzten Wahrscheinlichkeit.</translation>
    </message>
    <message>
        <source>Which subset of its size makes allocations most often correct; the first of equals.</source>
        <translation>Mit welcher Teilmenge ihrer Größe Zuordnungen am häufigsten richtig sind; bei gleichen die erste.</translation>
    </message>
    <message>
        <source>The loci of the subset.</source>
        <translation>Die Loci der Teilmenge.</translation>
    </message>
    <message>
        <source>all subsets</source>
        <translation>alle Teilmengen</translation>
    </message>
    <message>
        <source>best of each size</source>
        <translation>beste jeder Größe</translation>
    </message>
    <message numerus="yes">
        <source>%n loci</source>
        <comment>%n locus</comment>
        <translation>
            <numerusform>%n Locus</numerusform>
            <numerusform>%n Loci</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 subsets</source>
        <translation>%1 von %2 Teilmengen</translation>
    </message>
    <message numerus="yes">
        <source>%n offspring have several equally likely pairs (%1 more than five): the first pair found decided. See them in the tab Offspring.</source>
        <comment>%n offspring has several equally likely pairs (%1 more than five): the first pair found decided. See them in the tab Offspring.</comment>
        <translation>
            <numerusform>%n Nachkomme hat mehrere gleich wahrscheinliche Paare (%1 mehr als fünf): das zuerst gefundene entschied. Sie stehen unter Nachkommen.</numerusform>
            <numerusform>%n Nachkommen haben mehrere gleich wahrscheinliche Paare (%1 mehr als fünf): das zuerst gefundene entschied. Sie stehen unter Nachkommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n offspring have no possible pair among the collected parents; both of their parents count as uncollected (UC).</source>
        <comment>%n offspring has no possible pair among the collected parents; both of its parents count as uncollected (UC).</comment>
        <translation>
            <numerusform>%n Nachkomme hat kein mögliches Paar unter den beprobten Eltern; beide Eltern gelten als unbeprobt (UC).</numerusform>
            <numerusform>%n Nachkommen haben kein mögliches Paar unter den beprobten Eltern; ihre beiden Eltern gelten als unbeprobt (UC).</numerusform>
        </translation>
    </message>
    <message>
        <source>tables for R and Python</source>
        <translation>Tabellen für R und Python</translation>
    </message>
    <message>
        <source>a workbook</source>
        <translation>eine Arbeitsmappe</translation>
    </message>
    <message>
        <source>a page to be read</source>
        <translation>eine Seite zum Lesen</translation>
    </message>
    <message>
        <source>pedigree files</source>
        <translation>Stammbaumdateien</translation>
    </message>
    <message>
        <source>a name, a file and a column of settings stand at its head</source>
        <translation>an ihrem Anfang ein Name, eine Datei und eine Spalte von Einstellungen stehen</translation>
    </message>
    <message>
        <source>line %1 holds four numbers, and %2 names of loci follow</source>
        <translation>Zeile %1 vier Zahlen enthält und %2 Namen von Loci folgen</translation>
    </message>
    <message>
        <source>line %1 counts %2 loci, %3 samples and %4 populations</source>
        <translation>Zeile %1 von %2 Loci, %3 Proben und %4 Populationen spricht</translation>
    </message>
    <message>
        <source>its heads are Sample Name, Marker, Allele 1 and Allele 2</source>
        <translation>ihre Köpfe Sample Name, Marker, Allele 1 und Allele 2 lauten</translation>
    </message>
    <message>
        <source>line %1 is POP, behind the names of loci</source>
        <translation>Zeile %1 POP ist, hinter den Namen der Loci</translation>
    </message>
    <message>
        <source>line %1 holds heads, %2 of them</source>
        <translation>Zeile %1 Köpfe enthält, und zwar %2</translation>
    </message>
    <message>
        <source>it begins with ##fileformat=VCF</source>
        <translation>sie mit ##fileformat=VCF beginnt</translation>
    </message>
    <message>
        <source>Order by &amp;information</source>
        <translation>Nach &amp;Aussagekraft ordnen</translation>
    </message>
    <message>
        <source>The locus that excludes most random pairs of parents enters first, as by exclusion_pair in &quot;Loci.tsv&quot;</source>
        <translation>Der Locus, der die meisten zufälligen Elternpaare ausschließt, kommt zuerst, nach exclusion_pair in „Loci.tsv“</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected parents</source>
        <translation>%1 beprobten und %2 unbeprobten Eltern</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected males</source>
        <translation>%1 beprobten und %2 unbeprobten Männchen</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected females</source>
        <translation>%1 beprobten und %2 unbeprobten Weibchen</translation>
    </message>
    <message>
        <source>Made with errors (%1), allocated as if there were none: strict exclusion.</source>
        <translation>Mit Fehlern erzeugt (%1), zugeordnet, als gäbe es keine: strenger Ausschluss.</translation>
    </message>
    <message>
        <source>By the share of random pairs that each locus excludes: %1.</source>
        <translation>Nach dem Anteil zufälliger Paare, den jeder Locus ausschließt: %1.</translation>
    </message>
    <message>
        <source>Offspring of %1. %2</source>
        <translation>Nachkommen von %1. %2</translation>
    </message>
    <message>
        <source>%1 (%2 % of the population uncollected)</source>
        <translation>%1 (%2 % der Population unbeprobt)</translation>
    </message>
    <message>
        <source>Allocated with the model of error of the run (%1), --allocate-with run, as real offspring are.</source>
        <translation>Zugeordnet mit dem Fehlermodell des Laufs (%1), --allocate-with run, wie wirkliche Nachkommen.</translation>
    </message>
    <message>
        <source>Allocated with the model of error of the run (%1), as real offspring are.</source>
        <translation>Zugeordnet mit dem Fehlermodell des Laufs (%1), wie wirkliche Nachkommen.</translation>
    </message>
    <message>
        <source>Made with errors (%1), allocated with another model (%2).</source>
        <translation>Mit Fehlern erzeugt (%1), zugeordnet mit einem anderen Modell (%2).</translation>
    </message>
    <message>
        <source>%1 (NA after one iteration)</source>
        <translation>%1 (NA nach einer Iteration)</translation>
    </message>
    <message>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 bis %3)</translation>
    </message>
    <message>
        <source>Estimated probability to be correct, in the population, with its 95 % interval:</source>
        <translation>Geschätzte Wahrscheinlichkeit, richtig zu sein, in der Population, mit 95-%-Intervall:</translation>
    </message>
    <message>
        <source>from</source>
        <translation>von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source> How sure the allocations are is not shown in full: %1.</source>
        <translation> Wie sicher die Zuordnungen sind, wird nicht vollständig gezeigt: %1.</translation>
    </message>
    <message numerus="yes">
        <source> Of %n offspring with more than five pairs the reports name the first one alone, so that tables, which count them, cannot be exported.</source>
        <comment> Of %n offspring with more than five pairs the reports name the first one alone, so that tables, which count them, cannot be exported.</comment>
        <translation>
            <numerusform> Von %n Nachkommen mit mehr als fünf Paaren nennen die Berichte nur das erste, sodass Tabellen, die sie zählen, nicht exportiert werden können.</numerusform>
            <numerusform> Von %n Nachkommen mit mehr als fünf Paaren nennen die Berichte nur das erste, sodass Tabellen, die sie zählen, nicht exportiert werden können.</numerusform>
        </translation>
    </message>
    <message>
        <source> An HTML report and a workbook need more digits than the reports have: run again for them.</source>
        <translation> Ein HTML-Bericht und eine Arbeitsmappe brauchen mehr Stellen, als die Berichte haben: dafür ist ein neuer Lauf nötig.</translation>
    </message>
    <message>
        <source> Figures have the digits of the reports; NA stands where these tell none. Exports need all digits: run again for them.</source>
        <translation> Die Zahlen haben die Stellen der Berichte; NA steht, wo diese keine nennen. Exporte brauchen alle Stellen: dafür ist ein neuer Lauf nötig.</translation>
    </message>
    <message>
        <source>This is the record of simulations. Only allocations can be compared.</source>
        <translation>Dies ist das Protokoll von Simulationen. Nur Zuordnungen lassen sich vergleichen.</translation>
    </message>
    <message>
        <source>Run record of the other run</source>
        <translation>Laufprotokoll des anderen Laufs</translation>
    </message>
    <message>
        <source>Parents have to be typed at every locus unless a run allows otherwise; the list below tells what each way costs.</source>
        <translation>Eltern müssen an jedem Locus typisiert sein, wenn ein Lauf es nicht anders erlaubt; die Liste unten sagt, was jeder Weg kostet.</translation>
    </message>
    <message>
        <source>keep: leave nothing out; the run allows undefined parents</source>
        <translation>keep: nichts weglassen; der Lauf erlaubt nicht definierte Eltern</translation>
    </message>
    <message>
        <source>Parents may be undefined at some loci</source>
        <translation>Eltern dürfen an einigen Loci nicht definiert sein</translation>
    </message>
    <message>
        <source>A parent that could not be typed at a locus is tried there with what its population would have. Else every parent has to be typed at every locus.</source>
        <translation>Ein Elternteil, der an einem Locus nicht typisiert werden konnte, wird dort mit dem geprüft, was seine Population hätte. Sonst muss jeder Elternteil an jedem Locus typisiert sein.</translation>
    </message>
    <message>
        <source>Genotypes of the parents collected: a name and one field per locus, no undefined alleles.</source>
        <translation>Genotypen der beprobten Eltern: ein Name und ein Feld je Locus, keine nicht definierten Allele.</translation>
    </message>
    <message numerus="yes">
        <source>%n undefined loci</source>
        <comment>%n undefined locus</comment>
        <translation>
            <numerusform>%n nicht definierter Locus</numerusform>
            <numerusform>%n nicht definierte Loci</numerusform>
        </translation>
    </message>
    <message>
        <source>Matin&amp;gs</source>
        <translation>&amp;Verpaarungen</translation>
    </message>
    <message>
        <source>Who had offspring with whom, as a table that is a picture.</source>
        <translation>Wer mit wem Nachkommen hatte, als Tabelle, die ein Bild ist.</translation>
    </message>
    <message>
        <source>Compare with another run...</source>
        <translation>Mit anderem Lauf vergleichen...</translation>
    </message>
    <message>
        <source>Show which offspring have another pair in another run (Ctrl+D).</source>
        <translation>Zeigt, welche Nachkommen in einem anderen Lauf ein anderes Paar haben (Strg+D).</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>nicht definiert</translation>
    </message>
    <message>
        <source>Neither parent carries an allele of the offspring, or its locus is undefined.</source>
        <translation>Kein Elternteil trägt ein Allel des Nachkommen, oder sein Locus ist nicht definiert.</translation>
    </message>
    <message>
        <source>%1 exact   %2 within the tolerance (an error)   %3 above it (UC)   %4 one allele in neither parent   %5 undefined</source>
        <translation>%1 genau   %2 innerhalb der Toleranz (ein Fehler)   %3 darüber (UC)   %4 ein Allel trägt kein Elternteil   %5 nicht definiert</translation>
    </message>
    <message>
        <source>Families, the largest first</source>
        <translation>Familien, die größte zuerst</translation>
    </message>
    <message>
        <source>Show offsp&amp;ring</source>
        <translation>Nac&amp;hkommen zeigen</translation>
    </message>
    <message>
        <source>Show the offspring of the chosen family (Enter, or a double click). A double click on a name shows all of that parent.</source>
        <translation>Zeigt die Nachkommen der gewählten Familie (Eingabetaste oder Doppelklick). Ein Doppelklick auf einen Namen zeigt alle dieses Elternteils.</translation>
    </message>
    <message>
        <source>Go to the families of parents and offspring whose name contains this; Enter goes to the next.</source>
        <translation>Geht zu den Familien der Eltern und Nachkommen, deren Name dies enthält; die Eingabetaste geht zur nächsten.</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>Alles auf einen Blic&amp;k</translation>
    </message>
    <message>
        <source>Make the cells so small that the table is seen at once.</source>
        <translation>Macht die Zellen so klein, dass die Tabelle auf einmal zu sehen ist.</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>Copy the selected families of the list, or all, with their heads, to be pasted into a spreadsheet.</source>
        <translation>Kopiert die gewählten Familien der Liste, oder alle, mit ihren Köpfen, zum Einfügen in eine Tabellenkalkulation.</translation>
    </message>
    <message>
        <source>Save the list of families as comma-separated values.</source>
        <translation>Speichert die Liste der Familien als kommagetrennte Werte.</translation>
    </message>
    <message>
        <source>%1 of %2 found</source>
        <translation>%1 von %2 gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n offspring</source>
        <comment>%n offspring</comment>
        <translation>
            <numerusform>%n Nachkomme</numerusform>
            <numerusform>%n Nachkommen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 with %3</source>
        <translation>%1: %2 mit %3</translation>
    </message>
    <message numerus="yes">
        <source>%n mates</source>
        <comment>%n mate</comment>
        <translation>
            <numerusform>%n Partner</numerusform>
            <numerusform>%n Partnern</numerusform>
        </translation>
    </message>
    <message>
        <source>Only likely</source>
        <translation>Nur wahrscheinlich</translation>
    </message>
    <message>
        <source>Offspring of the parents (rows) with each other (columns)</source>
        <translation>Nachkommen der Eltern (Zeilen) miteinander (Spalten)</translation>
    </message>
    <message>
        <source>Offspring of males (rows) and females (columns)</source>
        <translation>Nachkommen von Männchen (Zeilen) und Weibchen (Spalten)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1: no offspring</source>
        <translation>%1: keine Nachkommen</translation>
    </message>
    <message>
        <source>, %1 only likely</source>
        <translation>, %1 nur wahrscheinlich</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>%1 of %2 stand here</source>
        <translation>%1 von %2 stehen hier</translation>
    </message>
    <message>
        <source>; %1 left out, because %2</source>
        <translation>; %1 fehlen: %2</translation>
    </message>
    <message>
        <source>not one pair alone explains them best</source>
        <translation>nicht ein Paar allein erklärt sie am besten</translation>
    </message>
    <message>
        <source>. %1 of %2 collected parents have none of them and are left out, too.</source>
        <translation>. %1 von %2 beprobten Eltern haben keinen davon und fehlen ebenfalls.</translation>
    </message>
    <message>
        <source> How sure the pairs are was not computed.</source>
        <translation> Wie sicher die Paare sind, wurde nicht berechnet.</translation>
    </message>
    <message>
        <source>Number and colour: offspring. UC: not collected.</source>
        <translation>Zahl und Farbe: Nachkommen. UC: nicht beprobt.</translation>
    </message>
    <message>
        <source> %1: some of them are no more than likely.</source>
        <translation> %1: einige davon sind nur wahrscheinlich.</translation>
    </message>
    <message>
        <source> Every pair stands twice, so that a row has all mates of its parent.</source>
        <translation> Jedes Paar steht zweimal, sodass eine Zeile alle Partner ihres Elternteils hat.</translation>
    </message>
    <message>
        <source>A cell has the number of offspring of two parents.</source>
        <translation>Eine Zelle hat die Zahl der Nachkommen zweier Eltern.</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>From which file the parent is: of the males or of the females.</source>
        <translation>Aus welcher Datei der Elternteil ist: der Männchen oder der Weibchen.</translation>
    </message>
    <message>
        <source>Offspring in both runs</source>
        <translation>Nachkommen in beiden Läufen</translation>
    </message>
    <message>
        <source>Show only offspring whose name, or the name of a parent in either run, contains this.</source>
        <translation>Zeigt nur Nachkommen, deren Name, oder der Name eines Elternteils in einem der Läufe, dies enthält.</translation>
    </message>
    <message>
        <source>Show only offspring with another pair, all, or those of one run alone.</source>
        <translation>Zeigt nur Nachkommen mit einem anderen Paar, alle, oder die nur eines Laufs.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>This: %1</source>
        <translation>Dieser: %1</translation>
    </message>
    <message>
        <source>Other: %1</source>
        <translation>Anderer: %1</translation>
    </message>
    <message>
        <source>other run only</source>
        <translation>nur im anderen Lauf</translation>
    </message>
    <message>
        <source>this run only</source>
        <translation>nur in diesem Lauf</translation>
    </message>
    <message>
        <source>another pair</source>
        <translation>anderes Paar</translation>
    </message>
    <message>
        <source>same pair</source>
        <translation>dasselbe Paar</translation>
    </message>
    <message>
        <source>This run: %1</source>
        <translation>Dieser Lauf: %1</translation>
    </message>
    <message>
        <source>Other run: %1</source>
        <translation>Anderer Lauf: %1</translation>
    </message>
    <message>
        <source>Both have the same input files.</source>
        <translation>Beide haben dieselben Eingabedateien.</translation>
    </message>
    <message>
        <source>Their input files differ:</source>
        <translation>Ihre Eingabedateien unterscheiden sich:</translation>
    </message>
    <message>
        <source>%1 - two runs compared</source>
        <translation>%1 - zwei Läufe im Vergleich</translation>
    </message>
    <message>
        <source>in one run only</source>
        <translation>nur in einem Lauf</translation>
    </message>
    <message>
        <source>Close this window.</source>
        <translation>Schließt dieses Fenster.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring of both runs have another pair</source>
        <translation>%1 von %2 Nachkommen beider Läufe haben ein anderes Paar</translation>
    </message>
    <message>
        <source>%1 of %2 offspring of both runs has another pair</source>
        <translation>%1 von %2 Nachkommen beider Läufe hat ein anderes Paar</translation>
    </message>
    <message>
        <source>%1 in this run only, %2 in the other one only</source>
        <translation>%1 nur in diesem Lauf, %2 nur im anderen</translation>
    </message>
    <message>
        <source>known mothers</source>
        <translation>bekannte Mütter</translation>
    </message>
    <message>
        <source>candidates</source>
        <translation>Kandidaten</translation>
    </message>
    <message>
        <source>How many parents were not collected is not in the reports of a run that counts relatives. Run it again to try its results.</source>
        <translation>Wie viele Eltern nicht beprobt wurden, steht nicht in den Berichten eines Laufs, der Verwandte zählt. Wiederholen Sie ihn, um seine Ergebnisse zu prüfen.</translation>
    </message>
    <message>
        <source>By the estimate %1 parents were not collected. A simulation has room for %2 parents in all, so that %3 are drawn.</source>
        <translation>Nach der Schätzung wurden %1 Eltern nicht beprobt. Eine Simulation hat Platz für insgesamt %2 Eltern, sodass %3 gezogen werden.</translation>
    </message>
    <message>
        <source>%1: %2 in this run only</source>
        <translation>%1: %2 nur in diesem Lauf</translation>
    </message>
    <message>
        <source>%1: %2 in the other run only</source>
        <translation>%1: %2 nur im anderen Lauf</translation>
    </message>
    <message>
        <source>%1: %2 in this run, %3 with other contents in the other one</source>
        <translation>%1: %2 in diesem Lauf, %3 mit anderem Inhalt im anderen</translation>
    </message>
    <message>
        <source>none: the error model has a negative probability</source>
        <translation>keine: das Fehlermodell hat eine negative Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>none: probabilities are not known</source>
        <translation>keine: Wahrscheinlichkeiten sind nicht bekannt</translation>
    </message>
    <message>
        <source>Pair besi&amp;de it:</source>
        <translation>Ve&amp;rgleichspaar:</translation>
    </message>
    <message>
        <source>Copy geno&amp;types</source>
        <translation>Genot&amp;ypen kopieren</translation>
    </message>
    <message>
        <source>Cop&amp;y picture</source>
        <translation>B&amp;ild kopieren</translation>
    </message>
    <message>
        <source>S&amp;how its offspring</source>
        <translation>&amp;Dessen Nachkommen zeigen</translation>
    </message>
    <message>
        <source>Est&amp;imates</source>
        <translation>Schätzu&amp;ngen</translation>
    </message>
    <message>
        <source>Number of offspring</source>
        <translation>Nachkommen</translation>
    </message>
    <message>
        <source>%1 of %2 offspring are allocated to two collected parents; how sure that is was computed, but its report cannot be used.</source>
        <translation>%1 von %2 Nachkommen sind zwei beprobten Eltern zugeordnet; wie sicher das ist, wurde berechnet, aber der Bericht darüber ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring is allocated to two collected parents; how sure that is was computed, but its report cannot be used.</source>
        <translation>%1 von %2 Nachkommen ist zwei beprobten Eltern zugeordnet; wie sicher das ist, wurde berechnet, aber der Bericht darüber ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>How many parents were not collected is not known: the report of how sure the run is cannot be used.</source>
        <translation>Wie viele Eltern nicht beprobt wurden, ist nicht bekannt: der Bericht darüber, wie sicher der Lauf ist, ist nicht verwendbar.</translation>
    </message>
    <message>
        <source> How sure the pairs are was computed, but its report cannot be used.</source>
        <translation> Wie sicher die Paare sind, wurde berechnet, aber der Bericht darüber ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Step &amp;by step</source>
        <translation>Schritt &amp;für Schritt</translation>
    </message>
    <message>
        <source>Which offspring have another pair after another step of the sequence.</source>
        <translation>Welche Nachkommen nach einem anderen Schritt der Folge ein anderes Paar haben.</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>Schritt %1: %2</translation>
    </message>
    <message>
        <source>Offspring with another pair</source>
        <translation>Nachkommen mit anderem Paar</translation>
    </message>
    <message>
        <source>A step of the sequence: its number and the locus that it adds.</source>
        <translation>Ein Schritt der Folge: seine Nummer und der Locus, der dazukommt.</translation>
    </message>
    <message>
        <source>S&amp;tep:</source>
        <translation>Sch&amp;ritt:</translation>
    </message>
    <message>
        <source>Besi&amp;de it:</source>
        <translation>&amp;Daneben:</translation>
    </message>
    <message>
        <source>Copy the selected offspring, or all, with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Kopiert die gewählten Nachkommen, oder alle, mit ihren Köpfen, zum Einfügen in eine Tabellenkalkulation (Strg+C).</translation>
    </message>
    <message>
        <source>The reports tell the pairs of the last step alone, so that of results opened again only numbers are compared. Run again to see which offspring have another pair.</source>
        <translation>Die Berichte nennen nur die Paare des letzten Schritts, sodass von wieder geöffneten Ergebnissen nur Anzahlen verglichen werden. Wiederholen Sie den Lauf, um zu sehen, welche Nachkommen ein anderes Paar haben.</translation>
    </message>
    <message>
        <source>%1: %2, then %3 (%4)</source>
        <translation>%1: %2, dann %3 (%4)</translation>
    </message>
    <message>
        <source>Offspring by class. %1</source>
        <translation>Nachkommen nach Klassen. %1</translation>
    </message>
    <message>
        <source>%1 of %2 have another pair.</source>
        <translation>%1 von %2 haben ein anderes Paar.</translation>
    </message>
    <message>
        <source>sexes</source>
        <translation>Geschlechter</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>undefined parents</source>
        <translation>undefinierte Eltern</translation>
    </message>
    <message>
        <source>sequence of loci</source>
        <translation>Folge der Loci</translation>
    </message>
    <message>
        <source>how sure computed</source>
        <translation>Sicherheit berechnet</translation>
    </message>
    <message>
        <source>level of confidence</source>
        <translation>Konfidenzniveau</translation>
    </message>
    <message>
        <source>uncollected full sibs of candidates</source>
        <translation>unbeprobte Vollgeschwister der Kandidaten</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>%1: %2 in this run, %3 in the other one</source>
        <translation>%1: %2 in diesem Lauf, %3 im anderen</translation>
    </message>
    <message>
        <source>Both have the same settings.</source>
        <translation>Beide haben dieselben Einstellungen.</translation>
    </message>
    <message>
        <source>Their settings differ:</source>
        <translation>Ihre Einstellungen unterscheiden sich:</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>Datensatz %1</translation>
    </message>
    <message>
        <source>record %1 (%2)</source>
        <translation>Datensatz %1 (%2)</translation>
    </message>
    <message>
        <source>locus %1</source>
        <translation>Locus %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>%1 has %2 digits, the first parents file uses %3</source>
        <translation>%1 hat %2 Ziffern, die erste Elterndatei verwendet %3</translation>
    </message>
    <message>
        <source>%1 has %2 digit, the first parents file uses %3</source>
        <translation>%1 hat %2 Ziffer, die erste Elterndatei verwendet %3</translation>
    </message>
    <message>
        <source>spreadsheets drop leading zeros: write them again or correct the field</source>
        <translation>Tabellenkalkulationen lassen führende Nullen weg: schreiben Sie sie wieder hin oder berichtigen Sie das Feld</translation>
    </message>
    <message>
        <source>%1 has %2 digits for both alleles</source>
        <translation>%1 hat %2 Ziffern für beide Allele</translation>
    </message>
    <message>
        <source>%1 has %2 characters</source>
        <translation>%1 hat %2 Zeichen</translation>
    </message>
    <message>
        <source>%1 has %2 character</source>
        <translation>%1 hat %2 Zeichen</translation>
    </message>
    <message>
        <source>both alleles need the same number of digits</source>
        <translation>beide Allele brauchen gleich viele Ziffern</translation>
    </message>
    <message>
        <source>is it &quot;%1&quot; without its leading zero?</source>
        <translation>ist es „%1“ ohne die führende Null?</translation>
    </message>
    <message>
        <source>%1 should be both allele sizes as digits side by side</source>
        <translation>%1 sollte aus den Größen beider Allele bestehen, als Ziffern nebeneinander</translation>
    </message>
    <message>
        <source>%1 holds an undefined allele</source>
        <translation>%1 enthält ein undefiniertes Allel</translation>
    </message>
    <message>
        <source>fields after the name: %1, loci named: %2</source>
        <translation>Felder hinter dem Namen: %1, benannte Loci: %2</translation>
    </message>
    <message>
        <source>separators are read in parents files only</source>
        <translation>Trennzeilen werden nur in Elterndateien gelesen</translation>
    </message>
    <message>
        <source>a separator stands alone on its line</source>
        <translation>ein Trennzeichen steht allein in seiner Zeile</translation>
    </message>
    <message>
        <source>write one name per locus</source>
        <translation>schreiben Sie je Locus einen Namen</translation>
    </message>
    <message>
        <source>%1 stands in line %2 already</source>
        <translation>%1 steht schon in Zeile %2</translation>
    </message>
    <message>
        <source>it is %1</source>
        <translation>es ist %1</translation>
    </message>
    <message>
        <source>its report %1 is missing</source>
        <translation>sein Bericht %1 fehlt</translation>
    </message>
    <message>
        <source>its report %1 is not listed</source>
        <translation>sein Bericht %1 ist nicht aufgeführt</translation>
    </message>
    <message>
        <source>its report %1 cannot be read</source>
        <translation>sein Bericht %1 lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>its report %1 has other contents: it was edited, or is of another run</source>
        <translation>sein Bericht %1 hat einen anderen Inhalt: er wurde bearbeitet oder gehört zu einem anderen Lauf</translation>
    </message>
    <message>
        <source>its report %1 does not say what such a report says</source>
        <translation>sein Bericht %1 sagt nicht, was ein solcher Bericht sagt</translation>
    </message>
    <message>
        <source>it holds no individual</source>
        <translation>sie enthält kein Individuum</translation>
    </message>
    <message>
        <source>an individual has no name</source>
        <translation>ein Individuum hat keinen Namen</translation>
    </message>
    <message>
        <source>There is no parent among the individuals.</source>
        <translation>Unter den Individuen ist kein Elternteil.</translation>
    </message>
    <message>
        <source>Another run is at work in &quot;%1&quot;. Wait for its end, or choose another project name.</source>
        <translation>Ein anderer Lauf arbeitet gerade in „%1“. Warten Sie sein Ende ab, oder wählen Sie einen anderen Projektnamen.</translation>
    </message>
    <message>
        <source>Another run is at work in &quot;%1&quot; (%2). Wait for its end, or choose another project name.</source>
        <translation>Ein anderer Lauf arbeitet gerade in „%1“ (%2). Warten Sie sein Ende ab, oder wählen Sie einen anderen Projektnamen.</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;; its new results are now all in place.</source>
        <translation>Ein früherer Lauf endete, während er die Ergebnisse in „%1“ ersetzte; seine neuen Ergebnisse sind jetzt alle da.</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;; the results from before it are all back.</source>
        <translation>Ein früherer Lauf endete, während er die Ergebnisse in „%1“ ersetzte; die Ergebnisse von davor sind alle wieder da.</translation>
    </message>
    <message>
        <source>Cannot remove &quot;%1&quot; of an earlier run.</source>
        <translation>„%1“ eines früheren Laufs lässt sich nicht entfernen.</translation>
    </message>
    <message>
        <source>a folder of that name is in the way</source>
        <translation>ein Ordner dieses Namens steht im Weg</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file</source>
        <translation>„%1“ ist eine Datei</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es ist ein Ordner</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Es ist kein Ordner</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Die Datei gibt es schon</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Das Kontingent des Datenträgers ist erschöpft</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>%1 parents</source>
        <translation>%1 Eltern</translation>
    </message>
    <message>
        <source>%1 parent</source>
        <translation>%1 Elternteil</translation>
    </message>
    <message>
        <source>%1 The earlier results could not be put back either: %2 Nothing is lost: &quot;kaldo check&quot; with this project, or the next run, goes on with it.</source>
        <translation>%1 Auch die früheren Ergebnisse ließen sich nicht zurückholen: %2 Nichts ist verloren: „kaldo check“ mit diesem Projekt, oder der nächste Lauf, macht damit weiter.</translation>
    </message>
    <message>
        <source>%1 The results of earlier runs are as they were.</source>
        <translation>%1 Die Ergebnisse früherer Läufe sind, wie sie waren.</translation>
    </message>
    <message>
        <source>Cannot replace &quot;%1&quot;: %2. Is it protected, or open in another program, such as a spreadsheet?</source>
        <translation>„%1“ lässt sich nicht ersetzen: %2. Ist die Datei geschützt oder in einem anderen Programm geöffnet, etwa einer Tabellenkalkulation?</translation>
    </message>
    <message>
        <source>Cannot replace &quot;%1&quot;: %2</source>
        <translation>„%1“ lässt sich nicht ersetzen: %2</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation>„%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Cannot make the folder &quot;%1&quot;: %2</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen: %2</translation>
    </message>
    <message>
        <source>Cannot write into the folder &quot;%1&quot;: %2</source>
        <translation>In den Ordner „%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Cannot make the workbook: %1</source>
        <translation>Die Arbeitsmappe lässt sich nicht erstellen: %1</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;, which can neither be finished nor undone: %2</source>
        <translation>Ein früherer Lauf endete, während er die Ergebnisse in „%1“ ersetzte, was sich weder beenden noch rückgängig machen lässt: %2</translation>
    </message>
    <message>
        <source>Who is a parent and who an offspring? Of %1 it is not known. Say it by file (--parents FILE --offspring FILE, or --males and --females), by --role COLUMN, or by --offspring-populations NAME,... (%2)</source>
        <translation>Wer gehört zu den Eltern und wer zu den Nachkommen? Von %1 ist es nicht bekannt. Geben Sie es je Datei an (--parents FILE --offspring FILE, oder --males und --females), durch --role COLUMN oder durch --offspring-populations NAME,... (%2)</translation>
    </message>
    <message>
        <source>Who is a parent and who an offspring? Of %1 it is not known. Say it by file (--parents FILE --offspring FILE, or --males and --females), by --role COLUMN, or by --offspring-populations NAME,...</source>
        <translation>Wer gehört zu den Eltern und wer zu den Nachkommen? Von %1 ist es nicht bekannt. Geben Sie es je Datei an (--parents FILE --offspring FILE, oder --males und --females), durch --role COLUMN oder durch --offspring-populations NAME,...</translation>
    </message>
    <message>
        <source>the sex of %1 is not known, here first, of %2 it is: tell all of them, or --no-sexes</source>
        <translation>das Geschlecht ist von %1 nicht bekannt, hier zum ersten Mal, und von %2 bekannt: geben Sie alle an, oder --no-sexes</translation>
    </message>
    <message>
        <source>The study would not run: %1</source>
        <translation>Die Studie würde nicht laufen: %1</translation>
    </message>
    <message>
        <source>%1 of %2 are undefined at some locus. Choose with --missing-parents what becomes of them:</source>
        <translation>%1 von %2 sind an einem Locus undefiniert. Wählen Sie mit --missing-parents, was mit ihnen geschieht:</translation>
    </message>
    <message>
        <source>%1 of %2 is undefined at some locus. Choose with --missing-parents what becomes of them:</source>
        <translation>%1 von %2 ist an einem Locus undefiniert. Wählen Sie mit --missing-parents, was damit geschieht:</translation>
    </message>
    <message>
        <source>  drop-individuals  %1</source>
        <translation>  drop-individuals  %1</translation>
    </message>
    <message>
        <source>  drop-loci         %1</source>
        <translation>  drop-loci         %1</translation>
    </message>
    <message>
        <source>  least             %1</source>
        <translation>  least             %1</translation>
    </message>
    <message>
        <source>  keep              nothing is left out; runs need --allow-undefined-parents</source>
        <translation>  keep              nichts wird weggelassen; Läufe brauchen --allow-undefined-parents</translation>
    </message>
    <message>
        <source>%1 left out (%2)</source>
        <translation>ohne %1 (%2)</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>ohne %1</translation>
    </message>
    <message>
        <source>%1 and %2 stay</source>
        <translation>%1 und %2 bleiben</translation>
    </message>
</context>
</TS>
