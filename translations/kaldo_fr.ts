<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Afficher les détails...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Masquer les détails...</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
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

Assignation de parenté avec des parents non collectés, à partir de génotypes microsatellites.

Pour citer&#xa0;: KALDO, version %1, avec le journal d&apos;exécution de vos résultats.

Logiciel libre sous la licence publique générale GNU, version 3 ou ultérieure.
Les graphiques sont dessinés par QCustomPlot, les fenêtres par Qt.</translation>
    </message>
    <message>
        <source>%1 is no whole number</source>
        <translation>%1 n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>&amp;Open the file</source>
        <translation>&amp;Ouvrir le fichier</translation>
    </message>
    <message>
        <source>ALLOCATION : SEXED</source>
        <translation>ASSIGNATION&#xa0;: AVEC SEXES</translation>
    </message>
    <message>
        <source>ALLOCATION : NON-SEXED</source>
        <translation>ASSIGNATION&#xa0;: SANS SEXES</translation>
    </message>
    <message>
        <source>SIMULATIONS : SEXED</source>
        <translation>SIMULATIONS&#xa0;: AVEC SEXES</translation>
    </message>
    <message>
        <source>SIMULATIONS: NON-SEXED</source>
        <translation>SIMULATIONS&#xa0;: SANS SEXES</translation>
    </message>
    <message>
        <source>Cumulative Sequence</source>
        <translation>Séquence cumulée</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Cannot make the folder &quot;%1&quot;.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;.</source>
        <translation>Impossible d&apos;écrire «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;parents&quot; and &quot;offspring&quot;</source>
        <translation>«&#xa0;parents&#xa0;» et «&#xa0;descendants&#xa0;»</translation>
    </message>
    <message>
        <source>take the NON-SEXED flow</source>
        <translation>choisir le parcours SANS SEXES</translation>
    </message>
    <message>
        <source>&quot;parents&quot;</source>
        <translation>«&#xa0;parents&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;males&quot;</source>
        <translation>«&#xa0;mâles&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;females&quot;</source>
        <translation>«&#xa0;femelles&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;offspring&quot;</source>
        <translation>«&#xa0;descendants&#xa0;»</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>pas encore choisi</translation>
    </message>
    <message>
        <source>drop-individuals: leave such parents out</source>
        <translation>drop-individuals&#xa0;: laisser ces parents de côté</translation>
    </message>
    <message>
        <source>drop-loci: leave such loci out</source>
        <translation>drop-loci&#xa0;: laisser ces locus de côté</translation>
    </message>
    <message>
        <source>least: leave out so that most genotypes stay</source>
        <translation>least&#xa0;: en laisser de côté de sorte que le plus de génotypes restent</translation>
    </message>
    <message>
        <source>as recognised</source>
        <translation>comme reconnu</translation>
    </message>
    <message>
        <source>&amp;More choices</source>
        <translation>P&amp;lus de choix</translation>
    </message>
    <message>
        <source>Show all that can be chosen for files of this format</source>
        <translation>Montre tout ce qui peut être choisi pour les fichiers de ce format</translation>
    </message>
    <message>
        <source>as the file looks</source>
        <translation>selon le fichier</translation>
    </message>
    <message numerus="yes">
        <source>%n individuals</source>
        <comment>%n individual</comment>
        <translation>
            <numerusform>%n individu</numerusform>
            <numerusform>%n individus</numerusform>
        </translation>
    </message>
    <message>
        <source>as its rows tell</source>
        <translation>selon ses lignes</translation>
    </message>
    <message>
        <source>parents</source>
        <translation>parents</translation>
    </message>
    <message>
        <source>males</source>
        <translation>mâles</translation>
    </message>
    <message>
        <source>females</source>
        <translation>femelles</translation>
    </message>
    <message>
        <source>offspring</source>
        <translation>descendants</translation>
    </message>
    <message>
        <source>Who is in the file: parents, males, females or offspring alone, or both parents and offspring, told by a column, by populations or by the format itself.</source>
        <translation>Qui se trouve dans le fichier&#xa0;: seulement des parents, des mâles, des femelles ou des descendants, ou bien parents et descendants, ce que disent alors une colonne, les populations ou le format lui-même.</translation>
    </message>
    <message>
        <source>&amp;Add a file...</source>
        <translation>&amp;Ajouter un fichier...</translation>
    </message>
    <message>
        <source>A further file of the same study, for instance that of the offspring</source>
        <translation>Un autre fichier de la même étude, par exemple celui des descendants</translation>
    </message>
    <message>
        <source>File to convert</source>
        <translation>Fichier à convertir</translation>
    </message>
    <message>
        <source>Who is in %1</source>
        <translation>Qui est dans %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Leave this file out; nothing happens to the file itself</source>
        <translation>Laisse ce fichier de côté&#xa0;; il n&apos;arrive rien au fichier lui-même</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>A further file</source>
        <translation>Un autre fichier</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>pas lu</translation>
    </message>
    <message>
        <source>%1, %2; %3. Taken for that, since %4.</source>
        <translation>%1, %2&#xa0;; %3. Pris pour cela, car %4.</translation>
    </message>
    <message>
        <source>The files cannot be converted yet. What is to be settled stands in the list.</source>
        <translation>Les fichiers ne peuvent pas encore être convertis. Ce qui reste à régler figure dans la liste.</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>Écri&amp;re dans</translation>
    </message>
    <message>
        <source>The folder for the converted files; it is made where it is not there.</source>
        <translation>Le dossier des fichiers convertis&#xa0;; il est créé s&apos;il n&apos;existe pas.</translation>
    </message>
    <message>
        <source>This flow needs the sexes of all parents. Tell them by file (&quot;males&quot; and &quot;females&quot;) or by a column of sexes (&quot;More choices&quot;), or convert the files in the NON-SEXED flow.</source>
        <translation>Ce parcours a besoin du sexe de tous les parents. Indiquez-le par fichier («&#xa0;mâles&#xa0;» et «&#xa0;femelles&#xa0;») ou par une colonne des sexes («&#xa0;Plus de choix&#xa0;»), ou convertissez les fichiers dans le parcours SANS SEXES.</translation>
    </message>
    <message>
        <source>The recorded run was started in the folder
%1
Use it as the working folder?</source>
        <translation>Le calcul enregistré a été lancé dans le dossier
%1
L&apos;utiliser comme dossier de travail&#xa0;?</translation>
    </message>
    <message>
        <source>The study of the recorded run was moved to the folder
%1
Use it as the working folder?</source>
        <translation>L&apos;étude du calcul enregistré se trouve maintenant dans le dossier
%1
L&apos;utiliser comme dossier de travail&#xa0;?</translation>
    </message>
    <message>
        <source>The record was made by KALDO %1, this is KALDO %2.</source>
        <translation>Le journal a été écrit par KALDO %1, ceci est KALDO %2.</translation>
    </message>
    <message>
        <source>Open results</source>
        <translation>Ouvrir des résultats</translation>
    </message>
    <message>
        <source>Opened from the reports of %1; nothing was run again.</source>
        <translation>Ouvert à partir des rapports du %1&#xa0;; rien n&apos;a été recalculé.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 elapsed</source>
        <translation>%1 sur %2, %3 écoulées</translation>
    </message>
    <message>
        <source>, about %1 left</source>
        <translation>, encore environ %1</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>KALDO allocates offspring to their parents from microsatellite genotypes when only part of the true parents has been collected. Where a parent is missing from the collection it says UC instead of guessing.

It also simulates how far such allocations can be trusted with your loci, before or after the field work.

You need: a file with the names of the loci, the genotypes of the collected parents, and those of the offspring, as plain text: a name and one field per locus, such as 152156.</source>
        <translation>KALDO assigne des descendants à leurs parents, à partir de génotypes microsatellites, quand une partie seulement des vrais parents a été collectée. Quand un parent manque dans la collection, il dit UC (non collecté) au lieu de deviner.

Il simule aussi jusqu&apos;où l&apos;on peut se fier à de telles assignations avec vos locus, avant ou après le travail de terrain.

Il vous faut&#xa0;: un fichier des noms des locus, les génotypes des parents collectés et ceux des descendants, en texte brut&#xa0;: un nom et un champ par locus, par exemple 152156.</translation>
    </message>
    <message>
        <source>Name of project    -----&gt;</source>
        <translation>Nom du projet    -----&gt;</translation>
    </message>
    <message>
        <source>Names the folder for the results, in the folder below. A second run under the same name replaces the results of the first.</source>
        <translation>Donne son nom au dossier des résultats, dans le dossier ci-dessous. Un second calcul sous le même nom remplace les résultats du premier.</translation>
    </message>
    <message>
        <source>ALLOCATION</source>
        <translation>ASSIGNATION</translation>
    </message>
    <message>
        <source>SIMULATIONS</source>
        <translation>SIMULATIONS</translation>
    </message>
    <message>
        <source>One set of candidate parents: any two of them may be a pair</source>
        <translation>Un seul ensemble de parents candidats&#xa0;: deux quelconques peuvent former un couple</translation>
    </message>
    <message>
        <source>Males and females are known: a pair is a male and a female</source>
        <translation>Mâles et femelles sont connus&#xa0;: un couple est un mâle et une femelle</translation>
    </message>
    <message>
        <source>SEXED</source>
        <translation>AVEC SEXES</translation>
    </message>
    <message>
        <source>NON-SEXED</source>
        <translation>SANS SEXES</translation>
    </message>
    <message>
        <source>Collected &amp;parents file</source>
        <translation>Fichier des &amp;parents collectés</translation>
    </message>
    <message>
        <source>Genotypes of all collected candidate parents: a name and one field per locus. Lines with * divide them into groups; only parents of one group are tried as a pair.</source>
        <translation>Génotypes de tous les parents candidats collectés&#xa0;: un nom et un champ par locus. Des lignes avec * les divisent en groupes&#xa0;; seuls les parents d&apos;un même groupe sont essayés en couple.</translation>
    </message>
    <message>
        <source>Collected &amp;males file</source>
        <translation>Fichier des &amp;mâles collectés</translation>
    </message>
    <message>
        <source>Genotypes of the collected males: a name and one field per locus. Lines with * divide them into groups; males of a group are tried with the females of the group of the same number.</source>
        <translation>Génotypes des mâles collectés&#xa0;: un nom et un champ par locus. Des lignes avec * les divisent en groupes&#xa0;; les mâles d&apos;un groupe sont essayés avec les femelles du groupe de même numéro.</translation>
    </message>
    <message>
        <source>Collected &amp;females file</source>
        <translation>Fichier des &amp;femelles collectées</translation>
    </message>
    <message>
        <source>Genotypes of the collected females, in as many groups as the males.</source>
        <translation>Génotypes des femelles collectées, en autant de groupes que les mâles.</translation>
    </message>
    <message>
        <source>&amp;Offspring file</source>
        <translation>Fichier des &amp;descendants</translation>
    </message>
    <message>
        <source>Genotypes of the offspring to allocate. A locus that could not be typed is a field of zeros.</source>
        <translation>Génotypes des descendants à assigner. Un locus qui n&apos;a pas pu être typé est un champ de zéros.</translation>
    </message>
    <message>
        <source>Names of &amp;loci file</source>
        <translation>Fichier des noms de &amp;locus</translation>
    </message>
    <message>
        <source>The names of the loci, in the order in which their fields follow each individual&apos;s name.</source>
        <translation>Les noms des locus, dans l&apos;ordre où leurs champs suivent le nom de chaque individu.</translation>
    </message>
    <message>
        <source>Something is &amp;known of single offspring</source>
        <translation>On sait quelque chose de &amp;certains descendants</translation>
    </message>
    <message>
        <source>For a known mother, candidates or a group of each offspring: only pairs that agree are tried.</source>
        <translation>Pour une mère connue, des candidats ou un groupe de chaque descendant&#xa0;: seuls les couples compatibles sont essayés.</translation>
    </message>
    <message>
        <source>Known mothers file</source>
        <translation>Fichier des mères connues</translation>
    </message>
    <message>
        <source>Per line an offspring and its mother; where sexes are not known, one of its parents.</source>
        <translation>Par ligne, un descendant et sa mère&#xa0;; sans sexes connus, l&apos;un de ses parents.</translation>
    </message>
    <message>
        <source>Candidates file</source>
        <translation>Fichier des candidats</translation>
    </message>
    <message>
        <source>Per line an offspring and the parents that may be its own.</source>
        <translation>Par ligne, un descendant et les parents qui peuvent être les siens.</translation>
    </message>
    <message>
        <source>Groups of offspring file</source>
        <translation>Fichier des groupes de descendants</translation>
    </message>
    <message>
        <source>Per line an offspring and the number of its group of parents: 1, 2 and so on.</source>
        <translation>Par ligne, un descendant et le numéro de son groupe de parents&#xa0;: 1, 2 et ainsi de suite.</translation>
    </message>
    <message>
        <source>&amp;No Error</source>
        <translation>&amp;Sans erreur</translation>
    </message>
    <message>
        <source>Every allele of a parent is read as itself: one misread allele excludes a parent.</source>
        <translation>Chaque allèle d&apos;un parent est lu tel quel&#xa0;: un seul allèle mal lu exclut le parent.</translation>
    </message>
    <message>
        <source>&amp;Uniform</source>
        <translation>&amp;Uniforme</translation>
    </message>
    <message>
        <source>An allele may be read as any other allele of its locus, all with the same probability.</source>
        <translation>Un allèle peut être lu comme n&apos;importe quel autre allèle de son locus, tous avec la même probabilité.</translation>
    </message>
    <message>
        <source>N&amp;on Uniform</source>
        <translation>N&amp;on uniforme</translation>
    </message>
    <message>
        <source>An allele may be read one or two unit distances shorter or longer, as stutter and slips of the polymerase do.</source>
        <translation>Un allèle peut être lu une ou deux distances unitaires plus court ou plus long, comme le font le bégaiement et le glissement de la polymérase.</translation>
    </message>
    <message>
        <source>&amp;Global error</source>
        <translation>Erreur &amp;globale</translation>
    </message>
    <message>
        <source>Probability that an allele is read as any other one, all others together: at most 0.1.</source>
        <translation>Probabilité qu&apos;un allèle soit lu comme un autre, tous les autres ensemble&#xa0;: au plus 0.1.</translation>
    </message>
    <message>
        <source>-&amp;2 units</source>
        <translation>-&amp;2 unités</translation>
    </message>
    <message>
        <source>Probability that an allele is read two unit distances shorter.</source>
        <translation>Probabilité qu&apos;un allèle soit lu deux distances unitaires plus court.</translation>
    </message>
    <message>
        <source>-&amp;1 unit</source>
        <translation>-&amp;1 unité</translation>
    </message>
    <message>
        <source>Probability that an allele is read one unit distance shorter.</source>
        <translation>Probabilité qu&apos;un allèle soit lu une distance unitaire plus court.</translation>
    </message>
    <message>
        <source>&amp;Target Allele</source>
        <translation>Allèle &amp;cible</translation>
    </message>
    <message>
        <source>Probability that an allele is read as itself: 0.9 to 1.</source>
        <translation>Probabilité qu&apos;un allèle soit lu tel quel&#xa0;: 0.9 à 1.</translation>
    </message>
    <message>
        <source>+1 un&amp;it</source>
        <translation>+1 un&amp;ité</translation>
    </message>
    <message>
        <source>Probability that an allele is read one unit distance longer.</source>
        <translation>Probabilité qu&apos;un allèle soit lu une distance unitaire plus long.</translation>
    </message>
    <message>
        <source>+2 unit&amp;s</source>
        <translation>+2 uni&amp;tés</translation>
    </message>
    <message>
        <source>Probability that an allele is read two unit distances longer.</source>
        <translation>Probabilité qu&apos;un allèle soit lu deux distances unitaires plus long.</translation>
    </message>
    <message>
        <source>%1: %2 is not a number</source>
        <translation>%1&#xa0;: %2 n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>%1: enter a number with a decimal point</source>
        <translation>%1&#xa0;: entrez un nombre avec un point décimal</translation>
    </message>
    <message>
        <source>The five probabilities sum to 1.</source>
        <translation>La somme des cinq probabilités est 1.</translation>
    </message>
    <message>
        <source>The five probabilities sum to %1, not to 1.</source>
        <translation>La somme des cinq probabilités est %1, et non 1.</translation>
    </message>
    <message>
        <source>  Model of error  </source>
        <translation>  Modèle d&apos;erreur  </translation>
    </message>
    <message>
        <source>&amp;Cumulative Sequence</source>
        <translation>Séquence &amp;cumulée</translation>
    </message>
    <message>
        <source>Run with the first locus, then with the first two, and so on: shows how many loci are enough.</source>
        <translation>Calcule avec le premier locus, puis avec les deux premiers, et ainsi de suite&#xa0;: montre combien de locus suffisent.</translation>
    </message>
    <message>
        <source>  Choice of loci  </source>
        <translation>  Choix des locus  </translation>
    </message>
    <message>
        <source>Whether the locus takes part in the run</source>
        <translation>Si le locus participe au calcul</translation>
    </message>
    <message>
        <source>Print results for each &amp;iteration</source>
        <translation>Imprimer les résultats de chaque &amp;itération</translation>
    </message>
    <message>
        <source>Write the tables of all iterations, a file per origin.</source>
        <translation>Écrit les tableaux de toutes les itérations, un fichier par origine.</translation>
    </message>
    <message>
        <source>Print global statistics for each &amp;subset of loci (recommended)</source>
        <translation>Imprimer les statistiques globales de chaque &amp;sous-ensemble de locus (recommandé)</translation>
    </message>
    <message>
        <source>Write means and standard deviations of every subset at the end of the summary.</source>
        <translation>Écrit les moyennes et les écarts types de chaque sous-ensemble à la fin du résumé.</translation>
    </message>
    <message>
        <source>modern &amp;random numbers</source>
        <translation>nombres &amp;aléatoires modernes</translation>
    </message>
    <message>
        <source>Numbers of 64 bits, without the coarse draws of the default ones: needed where alleles have two digits.</source>
        <translation>Nombres de 64 bits, sans les tirages grossiers des nombres par défaut&#xa0;: nécessaires quand les allèles ont deux chiffres.</translation>
    </message>
    <message>
        <source>the same random numbers for &amp;all subsets</source>
        <translation>les &amp;mêmes nombres aléatoires pour tous les sous-ensembles</translation>
    </message>
    <message>
        <source>All subsets of loci see the same parents and offspring, so that they differ less by chance.</source>
        <translation>Tous les sous-ensembles de locus voient les mêmes parents et descendants, et diffèrent donc moins par hasard.</translation>
    </message>
    <message>
        <source>simulated &amp;parents</source>
        <translation>&amp;parents simulés</translation>
    </message>
    <message>
        <source>Keep the simulated parents of the last iteration, one file per group.</source>
        <translation>Garde les parents simulés de la dernière itération, un fichier par groupe.</translation>
    </message>
    <message>
        <source>pseudo-&amp;offspring</source>
        <translation>pseudo-&amp;descendants</translation>
    </message>
    <message>
        <source>Keep the pseudo-offspring of the last iteration.</source>
        <translation>Garde les pseudo-descendants de la dernière itération.</translation>
    </message>
    <message>
        <source>transmission &amp;matrices</source>
        <translation>matrices de &amp;transmission</translation>
    </message>
    <message>
        <source>Keep the listing of all allocated pseudo-offspring of all iterations. It can be very large.</source>
        <translation>Garde la liste de tous les pseudo-descendants assignés de toutes les itérations. Elle peut être très longue.</translation>
    </message>
    <message>
        <source>S&amp;eed</source>
        <translation>&amp;Graine</translation>
    </message>
    <message>
        <source>Start of the random numbers, 0 to 4294967295: the same seed gives the same results. Empty: the calendar time; the run record tells it.</source>
        <translation>Début des nombres aléatoires, 0 à 4294967295&#xa0;: la même graine donne les mêmes résultats. Vide&#xa0;: l&apos;heure du calendrier&#xa0;; le journal d&apos;exécution l&apos;indique.</translation>
    </message>
    <message>
        <source>How many of them are drawn anew at every iteration: a whole number.</source>
        <translation>Combien en sont tirés à nouveau à chaque itération&#xa0;: un nombre entier.</translation>
    </message>
    <message>
        <source>How many there may be in the population; sets the proportion of collected parents, and with it the share of each origin of the pseudo-offspring.</source>
        <translation>Combien il peut y en avoir dans la population&#xa0;; fixe la proportion de parents collectés et, avec elle, la part de chaque origine des pseudo-descendants.</translation>
    </message>
    <message>
        <source>A representative sample: pseudo-collected parents are drawn from its allele frequencies.</source>
        <translation>Un échantillon représentatif&#xa0;: les parents pseudo-collectés sont tirés de ses fréquences alléliques.</translation>
    </message>
    <message>
        <source>A representative sample: the uncollected parents are drawn from its allele frequencies at every iteration.</source>
        <translation>Un échantillon représentatif&#xa0;: les parents non collectés sont tirés de ses fréquences alléliques à chaque itération.</translation>
    </message>
    <message>
        <source>How many parents you expect to collect; as many are drawn at every iteration.</source>
        <translation>Combien de parents vous espérez collecter&#xa0;; autant sont tirés à chaque itération.</translation>
    </message>
    <message>
        <source>  Parents  </source>
        <translation>  Parents  </translation>
    </message>
    <message>
        <source>Sample of &amp;pseudo-collected parents</source>
        <translation>Échantillon des parents p&amp;seudo-collectés</translation>
    </message>
    <message>
        <source>&amp;Estimated number of pseudo-collected parents</source>
        <translation>Nombre &amp;estimé de parents pseudo-collectés</translation>
    </message>
    <message>
        <source>Sample of &amp;uncollected parents</source>
        <translation>Échantillon des parents &amp;non collectés</translation>
    </message>
    <message>
        <source>Estimated &amp;number of uncollected parents</source>
        <translation>Nom&amp;bre estimé de parents non collectés</translation>
    </message>
    <message>
        <source>How many true parents were not collected; as many are drawn at every iteration. Together with the collected ones they set the share of each origin of the pseudo-offspring.</source>
        <translation>Combien des vrais parents n&apos;ont pas été collectés&#xa0;; autant sont tirés à chaque itération. Avec les parents collectés, ils fixent la part de chaque origine des pseudo-descendants.</translation>
    </message>
    <message>
        <source>  Males  </source>
        <translation>  Mâles  </translation>
    </message>
    <message>
        <source>Sample of pseudo-collected &amp;males</source>
        <translation>Échantillon des &amp;mâles pseudo-collectés</translation>
    </message>
    <message>
        <source>&amp;Number of pseudo-collected males</source>
        <translation>&amp;Nombre de mâles pseudo-collectés</translation>
    </message>
    <message>
        <source>Sample of &amp;uncollected males</source>
        <translation>Éc&amp;hantillon des mâles non collectés</translation>
    </message>
    <message>
        <source>Num&amp;ber of uncollected males</source>
        <translation>Nom&amp;bre de mâles non collectés</translation>
    </message>
    <message>
        <source>Estimated number of (pseudo)collected male parents   -------------- &gt;</source>
        <translation>Nombre estimé de mâles (pseudo-)collectés   -------------- &gt;</translation>
    </message>
    <message>
        <source>Estimated number of uncollected male parents   ------------------------ &gt;</source>
        <translation>Nombre estimé de mâles non collectés   ------------------------ &gt;</translation>
    </message>
    <message>
        <source>  Females  </source>
        <translation>  Femelles  </translation>
    </message>
    <message>
        <source>Sample of pseudo-collected &amp;females</source>
        <translation>Échantillon des &amp;femelles pseudo-collectées</translation>
    </message>
    <message>
        <source>Number &amp;of pseudo-collected females</source>
        <translation>N&amp;ombre de femelles pseudo-collectées</translation>
    </message>
    <message>
        <source>Sample of unco&amp;llected females</source>
        <translation>Échanti&amp;llon des femelles non collectées</translation>
    </message>
    <message>
        <source>Numbe&amp;r of uncollected females</source>
        <translation>Nomb&amp;re de femelles non collectées</translation>
    </message>
    <message>
        <source>Estimated number of (pseudo)collected female parents   ----------- &gt;</source>
        <translation>Nombre estimé de femelles (pseudo-)collectées   ----------- &gt;</translation>
    </message>
    <message>
        <source>Estimated number of uncollected female parents   --------------------- &gt;</source>
        <translation>Nombre estimé de femelles non collectées   --------------------- &gt;</translation>
    </message>
    <message>
        <source>Nu&amp;mber of pseudo-offspring generated at each iteration</source>
        <translation>No&amp;mbre de pseudo-descendants produits à chaque itération</translation>
    </message>
    <message>
        <source>They are shared out over the origins by the weights below; fractions are dropped.</source>
        <translation>Ils sont répartis entre les origines selon les poids ci-dessous&#xa0;; les fractions sont abandonnées.</translation>
    </message>
    <message>
        <source>Weights of the origins of the pseudo-offspring</source>
        <translation>Poids des origines des pseudo-descendants</translation>
    </message>
    <message>
        <source>The share of each parental origin in the population, which also weighs the partial results into the global ones</source>
        <translation>La part de chaque origine parentale dans la population, qui pondère aussi les résultats partiels dans les résultats globaux</translation>
    </message>
    <message>
        <source>True parents</source>
        <translation>Vrais parents</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Pseudo-offspring</source>
        <translation>Pseudo-descendants</translation>
    </message>
    <message>
        <source>  Transmission error  </source>
        <translation>  Erreur de transmission  </translation>
    </message>
    <message>
        <source>  Pseudo-offspring  </source>
        <translation>  Pseudo-descendants  </translation>
    </message>
    <message>
        <source>  Position of each locus in the sequence  </source>
        <translation>  Position de chaque locus dans la séquence  </translation>
    </message>
    <message>
        <source>Position of the locus: 1 enters first. A whole number from 1 to the number of loci</source>
        <translation>Position du locus&#xa0;: 1 entre en premier. Un nombre entier de 1 au nombre de locus</translation>
    </message>
    <message>
        <source>Number of &amp;iterations</source>
        <translation>Nombre d&apos;&amp;itérations</translation>
    </message>
    <message>
        <source>How often parents are drawn and pseudo-offspring are produced and allocated: fewer than 1000 in the non-sexed flow, at most 1000 in the sexed one. More give steadier averages.</source>
        <translation>Combien de fois des parents sont tirés et des pseudo-descendants produits et assignés&#xa0;: moins de 1000 sans sexes, au plus 1000 avec sexes. Un plus grand nombre donne des moyennes plus stables.</translation>
    </message>
    <message>
        <source>&amp;parental procedure (real collected parents)</source>
        <translation>procédure &amp;parentale (parents réellement collectés)</translation>
    </message>
    <message>
        <source>After the field work: the collected parents are read from a file.</source>
        <translation>Après le travail de terrain&#xa0;: les parents collectés sont lus dans un fichier.</translation>
    </message>
    <message>
        <source>pr&amp;e-parental procedure (pseudo-collected parents)</source>
        <translation>procédure pré-pa&amp;rentale (parents pseudo-collectés)</translation>
    </message>
    <message>
        <source>Before the field work: parents as you hope to collect them are drawn from the allele frequencies of a sample.</source>
        <translation>Avant le travail de terrain&#xa0;: des parents comme vous espérez en collecter sont tirés des fréquences alléliques d&apos;un échantillon.</translation>
    </message>
    <message>
        <source>-   &amp;Your choice of loci</source>
        <translation>-   &amp;Votre choix de locus</translation>
    </message>
    <message>
        <source>One run with the loci of your choice.</source>
        <translation>Un seul calcul avec les locus de votre choix.</translation>
    </message>
    <message>
        <source>-   &amp;All subsets of loci</source>
        <translation>-   &amp;Tous les sous-ensembles de locus</translation>
    </message>
    <message>
        <source>Every subset of the loci, from the smallest size on. Their number doubles with every locus: 10 loci have 1,023 subsets.</source>
        <translation>Chaque sous-ensemble de locus, à partir de la plus petite taille. Leur nombre double avec chaque locus&#xa0;: 10 locus ont 1023 sous-ensembles.</translation>
    </message>
    <message>
        <source>-   &amp;Minimal subsets with correctness criteria</source>
        <translation>-   Sous-ensembles &amp;minimaux avec critère d&apos;exactitude</translation>
    </message>
    <message>
        <source>The same subsets, smallest first, until one reaches the criterion below.</source>
        <translation>Les mêmes sous-ensembles, les plus petits d&apos;abord, jusqu&apos;à ce que l&apos;un atteigne le critère ci-dessous.</translation>
    </message>
    <message>
        <source>-   &amp;Cumulative sequence</source>
        <translation>-   Séquence &amp;cumulée</translation>
    </message>
    <message>
        <source>The first locus, the first two, and so on, in the order of the next screen.</source>
        <translation>Le premier locus, les deux premiers, et ainsi de suite, dans l&apos;ordre de l&apos;écran suivant.</translation>
    </message>
    <message>
        <source>&amp;Give correctness criteria :</source>
        <translation>&amp;Donner le critère d&apos;exactitude&#xa0;:</translation>
    </message>
    <message>
        <source>The probability that any allocation is correct which a minimal subset has to reach: 0 to 1.</source>
        <translation>La probabilité qu&apos;une assignation quelconque soit correcte, qu&apos;un sous-ensemble minimal doit atteindre&#xa0;: 0 à 1.</translation>
    </message>
    <message>
        <source>&amp;Number of loci to start with :</source>
        <translation>&amp;Nombre de locus au départ&#xa0;:</translation>
    </message>
    <message>
        <source>The smallest number of loci of a subset: 1 or more.</source>
        <translation>Le plus petit nombre de locus d&apos;un sous-ensemble&#xa0;: 1 ou plus.</translation>
    </message>
    <message>
        <source>Maximal offset &amp;tolerance</source>
        <translation>&amp;Tolérance d&apos;écart maximale</translation>
    </message>
    <message>
        <source>The largest difference between a parent&apos;s and an offspring&apos;s allele, in whole unit distances (repeats), that is taken for a transmission error. A parent that would need a larger one is declared uncollected (UC). 0 accepts exact alleles only.</source>
        <translation>La plus grande différence entre un allèle d&apos;un parent et celui d&apos;un descendant, en distances unitaires entières (répétitions), prise pour une erreur de transmission. Un parent auquel il en faudrait une plus grande est déclaré non collecté (UC). 0 n&apos;accepte que des allèles exacts.</translation>
    </message>
    <message>
        <source>The pseudo-offspring are allocated to the collected or pseudo-collected parents only. A tolerance acts where the allocation knows of errors.</source>
        <translation>Les pseudo-descendants sont assignés aux seuls parents collectés ou pseudo-collectés. Une tolérance agit là où l&apos;assignation connaît des erreurs.</translation>
    </message>
    <message>
        <source>The pseudo-offspring are allocated as in an allocation with the same transmission error, to the collected or pseudo-collected males and females only.</source>
        <translation>Les pseudo-descendants sont assignés comme dans une assignation avec la même erreur de transmission, aux seuls mâles et femelles collectés ou pseudo-collectés.</translation>
    </message>
    <message>
        <source>with the model &amp;No Error</source>
        <translation>avec le modèle &amp;Sans erreur</translation>
    </message>
    <message>
        <source>Strict exclusion: a pair fits every allele or is no pair. The figures are not those of an allocation with an error model.</source>
        <translation>Exclusion stricte&#xa0;: un couple convient à chaque allèle ou n&apos;en est pas un. Les chiffres ne sont pas ceux d&apos;une assignation avec un modèle d&apos;erreur.</translation>
    </message>
    <message>
        <source>with the &amp;same transmission error, as an allocation would</source>
        <translation>avec la &amp;même erreur de transmission, comme une assignation</translation>
    </message>
    <message>
        <source>The figures tell how often an allocation with this model and this tolerance is right.</source>
        <translation>Les chiffres disent combien de fois une assignation avec ce modèle et cette tolérance est correcte.</translation>
    </message>
    <message>
        <source>with the model of the &amp;record</source>
        <translation>avec le modèle du &amp;journal</translation>
    </message>
    <message>
        <source>Another model than that of the transmission error.</source>
        <translation>Un autre modèle que celui de l&apos;erreur de transmission.</translation>
    </message>
    <message>
        <source>Allele frequencies at %1</source>
        <translation>Fréquences alléliques au locus %1</translation>
    </message>
    <message>
        <source>allele size (bp)</source>
        <translation>taille de l&apos;allèle (pb)</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>fréquence</translation>
    </message>
    <message>
        <source>size (bp)</source>
        <translation>taille (pb)</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copies</translation>
    </message>
    <message>
        <source>%1 males and %2 females</source>
        <translation>%1 mâles et %2 femelles</translation>
    </message>
    <message numerus="yes">
        <source>%n parents</source>
        <comment>%n parents</comment>
        <translation>
            <numerusform>%n parent</numerusform>
            <numerusform>%n parents</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 groups</source>
        <translation>%1 en %2 groupes</translation>
    </message>
    <message>
        <source>%1 of %2: </source>
        <translation>%1 sur %2&#xa0;: </translation>
    </message>
    <message>
        <source>males file</source>
        <translation>fichier des mâles</translation>
    </message>
    <message>
        <source>females file</source>
        <translation>fichier des femelles</translation>
    </message>
    <message>
        <source>parents file</source>
        <translation>fichier des parents</translation>
    </message>
    <message>
        <source>offspring file</source>
        <translation>fichier des descendants</translation>
    </message>
    <message>
        <source>names of loci file</source>
        <translation>fichier des noms de locus</translation>
    </message>
    <message>
        <source>known mothers file</source>
        <translation>fichier des mères connues</translation>
    </message>
    <message>
        <source>candidates file</source>
        <translation>fichier des candidats</translation>
    </message>
    <message>
        <source>groups of offspring file</source>
        <translation>fichier des groupes de descendants</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 de plus</translation>
    </message>
    <message>
        <source>Of the %1 parents of the offspring %2 are sure, %3 likely, %4 open and %5 not collected; of the %6 that are named %7 are expected to be wrong.</source>
        <translation>Sur les %1 parents des descendants, %2 sont sûrs, %3 probables, %4 indécis et %5 non collectés&#xa0;; sur les %6 nommés, %7 sont sans doute faux.</translation>
    </message>
    <message>
        <source>Sexed allocation</source>
        <translation>Assignation avec sexes</translation>
    </message>
    <message>
        <source>Non-sexed allocation</source>
        <translation>Assignation sans sexes</translation>
    </message>
    <message>
        <source>collected</source>
        <translation>collectés</translation>
    </message>
    <message>
        <source>loci in use</source>
        <translation>locus utilisés</translation>
    </message>
    <message>
        <source>error model</source>
        <translation>modèle d&apos;erreur</translation>
    </message>
    <message>
        <source>maximal offset tolerance</source>
        <translation>tolérance d&apos;écart maximale</translation>
    </message>
    <message>
        <source>A cumulative sequence of loci was run. These results are those of its last combination; all of them are in the tab Sequence.</source>
        <translation>Une séquence cumulée de locus a été calculée. Ces résultats sont ceux de sa dernière combinaison&#xa0;; toutes figurent dans l&apos;onglet Séquence.</translation>
    </message>
    <message>
        <source>Files in &quot;%1&quot;</source>
        <translation>Fichiers dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Offspring by allocation of their parents</source>
        <translation>Descendants selon l&apos;assignation de leurs parents</translation>
    </message>
    <message>
        <source>class</source>
        <translation>classe</translation>
    </message>
    <message>
        <source>share of the offspring</source>
        <translation>part des descendants</translation>
    </message>
    <message>
        <source>share</source>
        <translation>part</translation>
    </message>
    <message>
        <source>settled</source>
        <translation>tranché</translation>
    </message>
    <message>
        <source>tied or open</source>
        <translation>ex aequo ou indécis</translation>
    </message>
    <message>
        <source>allocation</source>
        <translation>assignation</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>pairs %1</source>
        <translation>couples %1</translation>
    </message>
    <message>
        <source>Allocations by number of loci</source>
        <translation>Assignations selon le nombre de locus</translation>
    </message>
    <message>
        <source>loci</source>
        <translation>locus</translation>
    </message>
    <message>
        <source>added</source>
        <translation>ajouté</translation>
    </message>
    <message>
        <source>%1 sd</source>
        <translation>é.-t. de %1</translation>
    </message>
    <message>
        <source>Numbers of the chart</source>
        <translation>Chiffres du graphique</translation>
    </message>
    <message>
        <source>Save c&amp;hart...</source>
        <translation>Enre&amp;gistrer le graphique...</translation>
    </message>
    <message>
        <source>Save the chart for an article (SVG, PDF, PNG) or its numbers (CSV).</source>
        <translation>Enregistre le graphique pour un article (SVG, PDF, PNG) ou ses chiffres (CSV).</translation>
    </message>
    <message>
        <source>Si&amp;ze...</source>
        <translation>Taill&amp;e...</translation>
    </message>
    <message>
        <source>Choose the width and the height of a saved chart in millimetres.</source>
        <translation>Choisissez la largeur et la hauteur d&apos;un graphique enregistré, en millimètres.</translation>
    </message>
    <message>
        <source>Copy the chart as a picture, for a text or a slide.</source>
        <translation>Copie le graphique comme image, pour un texte ou une diapositive.</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>Copier le tablea&amp;u</translation>
    </message>
    <message>
        <source>Copy the selected rows, or all, with their heads, to be pasted into a spreadsheet.</source>
        <translation>Copie les lignes choisies, ou toutes, avec leurs en-têtes, à coller dans un tableur.</translation>
    </message>
    <message>
        <source>Copy &amp;picture</source>
        <translation>Copier l&apos;&amp;image</translation>
    </message>
    <message>
        <source>&amp;Save chart...</source>
        <translation>&amp;Enregistrer le graphique...</translation>
    </message>
    <message>
        <source>Size of saved charts</source>
        <translation>Taille des graphiques enregistrés</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Enregistrer le graphique</translation>
    </message>
    <message>
        <source>Vector graphics (*.svg)</source>
        <translation>Dessin vectoriel (*.svg)</translation>
    </message>
    <message>
        <source>Portable document (*.pdf)</source>
        <translation>Document portable (*.pdf)</translation>
    </message>
    <message>
        <source>Picture, 300 dpi (*.png)</source>
        <translation>Image, 300 ppp (*.png)</translation>
    </message>
    <message>
        <source>Numbers of the chart (*.csv)</source>
        <translation>Chiffres du graphique (*.csv)</translation>
    </message>
    <message>
        <source>One parent carries one allele of the offspring and the other parent the other.</source>
        <translation>Un parent porte un allèle du descendant et l&apos;autre parent l&apos;autre.</translation>
    </message>
    <message>
        <source>Both parents carry the same allele of the offspring, nobody the other one. Offsets are 0 all the same; the likelihood speaks against the pair.</source>
        <translation>Les deux parents portent le même allèle du descendant, personne l&apos;autre. Les écarts sont 0 malgré tout&#xa0;; la vraisemblance parle contre le couple.</translation>
    </message>
    <message>
        <source>Only parent 1 carries an allele of the offspring; parent 2 is measured.</source>
        <translation>Seul le parent 1 porte un allèle du descendant&#xa0;; le parent 2 est mesuré.</translation>
    </message>
    <message>
        <source>Only parent 2 carries an allele of the offspring; parent 1 is measured.</source>
        <translation>Seul le parent 2 porte un allèle du descendant&#xa0;; le parent 1 est mesuré.</translation>
    </message>
    <message>
        <source>&amp;Sexes file</source>
        <translation>Fichier des se&amp;xes</translation>
    </message>
    <message>
        <source>Per line an individual and m or f. Without it pedigrees name parent 1 and parent 2, which some programs do not take.</source>
        <translation>Par ligne, un individu et m ou f. Sans lui, les pedigrees nomment parent 1 et parent 2, ce que certains programmes n&apos;acceptent pas.</translation>
    </message>
    <message>
        <source>&amp;Least probability</source>
        <translation>Probabilité &amp;minimale</translation>
    </message>
    <message>
        <source>Pedigrees leave out parents that are less sure, for instance 0.95. Empty: all that are named.</source>
        <translation>Les pedigrees laissent de côté les parents moins sûrs, par exemple 0.95. Vide&#xa0;: tous ceux qui sont nommés.</translation>
    </message>
    <message>
        <source>In the folder of the run the files become a part of it, and its record lists them.</source>
        <translation>Dans le dossier du calcul, les fichiers en font partie, et son journal les cite.</translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; was written, but cannot be opened.</source>
        <translation>Le rapport «&#xa0;%1&#xa0;» a été écrit, mais ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The locus that excludes most pairs of strangers stands first. Many homozygote mismatches, a high null allele frequency or a high error rate ask for another look at its gels.</source>
        <translation>Le locus qui exclut le plus de couples d&apos;étrangers vient en premier. Beaucoup d&apos;homozygotes incompatibles, une fréquence élevée d&apos;allèles nuls ou un taux d&apos;erreur élevé demandent de revoir ses gels.</translation>
    </message>
    <message>
        <source>What each locus is worth</source>
        <translation>Ce que vaut chaque locus</translation>
    </message>
    <message>
        <source>Copy &amp;rows</source>
        <translation>C&amp;opier les lignes</translation>
    </message>
    <message>
        <source>Copy the selected loci, or all, with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Copie les locus choisis, ou tous, avec leurs en-têtes, à coller dans un tableur (Ctrl+C).</translation>
    </message>
    <message>
        <source>&amp;Export table...</source>
        <translation>Exporter le ta&amp;bleau...</translation>
    </message>
    <message>
        <source>Save the table as it is shown (CSV).</source>
        <translation>Enregistre le tableau tel qu&apos;il est montré (CSV).</translation>
    </message>
    <message>
        <source>The collected parent, or UC: the true one is taken not to be among the collected.</source>
        <translation>Le parent collecté, ou UC&#xa0;: le vrai est censé ne pas être parmi les collectés.</translation>
    </message>
    <message>
        <source>The probability that this is right: that it is the parent, or for UC that the parent was not collected.</source>
        <translation>La probabilité que cela soit juste&#xa0;: qu&apos;il soit le parent ou, pour UC, que le parent n&apos;ait pas été collecté.</translation>
    </message>
    <message>
        <source>The most probable candidate, whatever the verdict.</source>
        <translation>Le candidat le plus probable, quel que soit le verdict.</translation>
    </message>
    <message>
        <source>The probability that the most probable candidate is a parent.</source>
        <translation>La probabilité que le candidat le plus probable soit un parent.</translation>
    </message>
    <message>
        <source>Named or uncollected where that is as probable as the level of confidence asks for, else open.</source>
        <translation>Nommé ou non collecté quand c&apos;est aussi probable que le demande le niveau de confiance, sinon indécis.</translation>
    </message>
    <message>
        <source>The next most probable candidate.</source>
        <translation>Le candidat suivant en probabilité.</translation>
    </message>
    <message>
        <source>The probability that the next most probable candidate is a parent.</source>
        <translation>La probabilité que le candidat suivant soit un parent.</translation>
    </message>
    <message>
        <source>The probability that this parent was not collected; where sexes are not known: 1 that neither was, 2 that at most one was.</source>
        <translation>La probabilité que ce parent n&apos;ait pas été collecté&#xa0;; sans sexes connus&#xa0;: 1, qu&apos;aucun ne l&apos;ait été, 2, qu&apos;un seul au plus l&apos;ait été.</translation>
    </message>
    <message>
        <source>Place in the file of the parents, separators counted.</source>
        <translation>Place dans le fichier des parents, séparateurs compris.</translation>
    </message>
    <message>
        <source>Loci at which an error had to be assumed.</source>
        <translation>Locus où une erreur a dû être supposée.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Place in the offspring file.</source>
        <translation>Place dans le fichier des descendants.</translation>
    </message>
    <message>
        <source>Offspring</source>
        <translation>Descendant</translation>
    </message>
    <message>
        <source>Name of the offspring.</source>
        <translation>Nom du descendant.</translation>
    </message>
    <message>
        <source>Parent 1</source>
        <translation>Parent 1</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Mâle</translation>
    </message>
    <message>
        <source>Parent 2</source>
        <translation>Parent 2</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Femelle</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>How many parents, or which, are collected.</source>
        <translation>Combien de parents, ou lesquels, sont collectés.</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Couples</translation>
    </message>
    <message>
        <source>Pairs that explain the offspring equally well; the first decided. 0: no pair is possible; 5+: more than five were met.</source>
        <translation>Couples qui expliquent le descendant aussi bien&#xa0;; le premier a décidé. 0&#xa0;: aucun couple n&apos;est possible&#xa0;; 5+&#xa0;: plus de cinq ont été rencontrés.</translation>
    </message>
    <message>
        <source>Errors 1</source>
        <translation>Erreurs 1</translation>
    </message>
    <message>
        <source>Male errors</source>
        <translation>Erreurs mâle</translation>
    </message>
    <message>
        <source>Errors 2</source>
        <translation>Erreurs 2</translation>
    </message>
    <message>
        <source>Female errors</source>
        <translation>Erreurs femelle</translation>
    </message>
    <message>
        <source>Rank 1</source>
        <translation>Rang 1</translation>
    </message>
    <message>
        <source>Male rank</source>
        <translation>Rang mâle</translation>
    </message>
    <message>
        <source>Rank 2</source>
        <translation>Rang 2</translation>
    </message>
    <message>
        <source>Female rank</source>
        <translation>Rang femelle</translation>
    </message>
    <message>
        <source>Likelihood</source>
        <translation>Vraisemblance</translation>
    </message>
    <message>
        <source>Of the best pair. It ranks pairs; it is no certainty.</source>
        <translation>Du meilleur couple. Elle classe les couples&#xa0;; elle n&apos;est pas une certitude.</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>How far both parents can be relied on together. The list &quot;Show&quot; explains the words.</source>
        <translation>Jusqu&apos;où l&apos;on peut se fier aux deux parents ensemble. La liste «&#xa0;Sélection&#xa0;» explique les mots.</translation>
    </message>
    <message>
        <source>p right 1</source>
        <translation>p juste 1</translation>
    </message>
    <message>
        <source>p male right</source>
        <translation>p mâle juste</translation>
    </message>
    <message>
        <source>p right 2</source>
        <translation>p juste 2</translation>
    </message>
    <message>
        <source>p female right</source>
        <translation>p femelle juste</translation>
    </message>
    <message>
        <source>Candidate 1</source>
        <translation>Candidat 1</translation>
    </message>
    <message>
        <source>Most probable male</source>
        <translation>Mâle le plus probable</translation>
    </message>
    <message>
        <source>Candidate 2</source>
        <translation>Candidat 2</translation>
    </message>
    <message>
        <source>Most probable female</source>
        <translation>Femelle la plus probable</translation>
    </message>
    <message>
        <source>p 1</source>
        <translation>p 1</translation>
    </message>
    <message>
        <source>p male</source>
        <translation>p mâle</translation>
    </message>
    <message>
        <source>p 2</source>
        <translation>p 2</translation>
    </message>
    <message>
        <source>p female</source>
        <translation>p femelle</translation>
    </message>
    <message>
        <source>Verdict 1</source>
        <translation>Verdict 1</translation>
    </message>
    <message>
        <source>Verdict male</source>
        <translation>Verdict mâle</translation>
    </message>
    <message>
        <source>Verdict 2</source>
        <translation>Verdict 2</translation>
    </message>
    <message>
        <source>Verdict female</source>
        <translation>Verdict femelle</translation>
    </message>
    <message>
        <source>Runner-up 1</source>
        <translation>Suivant 1</translation>
    </message>
    <message>
        <source>Runner-up male</source>
        <translation>Mâle suivant</translation>
    </message>
    <message>
        <source>Runner-up 2</source>
        <translation>Suivant 2</translation>
    </message>
    <message>
        <source>Runner-up female</source>
        <translation>Femelle suivante</translation>
    </message>
    <message>
        <source>p runner-up 1</source>
        <translation>p suivant 1</translation>
    </message>
    <message>
        <source>p runner-up male</source>
        <translation>p mâle suivant</translation>
    </message>
    <message>
        <source>p runner-up 2</source>
        <translation>p suivant 2</translation>
    </message>
    <message>
        <source>p runner-up female</source>
        <translation>p femelle suivante</translation>
    </message>
    <message>
        <source>p not collected 1</source>
        <translation>p non collecté 1</translation>
    </message>
    <message>
        <source>p male not collected</source>
        <translation>p mâle non collecté</translation>
    </message>
    <message>
        <source>p not collected 2</source>
        <translation>p non collecté 2</translation>
    </message>
    <message>
        <source>p female not collected</source>
        <translation>p femelle non collectée</translation>
    </message>
    <message>
        <source>More than five equally likely pairs were met during the search. The mark stays, also when a better pair was found later.</source>
        <translation>Plus de cinq couples également probables ont été rencontrés pendant la recherche. La marque reste, même quand un meilleur couple a été trouvé ensuite.</translation>
    </message>
    <message>
        <source>Offspring and their parents</source>
        <translation>Descendants et leurs parents</translation>
    </message>
    <message>
        <source>part of a name</source>
        <translation>partie d&apos;un nom</translation>
    </message>
    <message>
        <source>Show only offspring whose name, or the name of a parent, contains this.</source>
        <translation>Montre seulement les descendants dont le nom, ou celui d&apos;un parent, contient ceci.</translation>
    </message>
    <message>
        <source>Show only one class of allocations, or those to be looked at twice.</source>
        <translation>Montre seulement une classe d&apos;assignations, ou celles qu&apos;il faut revoir.</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Name of the collected parent.</source>
        <translation>Nom du parent collecté.</translation>
    </message>
    <message>
        <source>Offspring that the results allocate to it.</source>
        <translation>Descendants que les résultats lui assignent.</translation>
    </message>
    <message>
        <source>Named</source>
        <translation>Nommés</translation>
    </message>
    <message>
        <source>Offspring of which it is named a parent at the level of confidence.</source>
        <translation>Descendants dont il est nommé parent au niveau de confiance.</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendus</translation>
    </message>
    <message>
        <source>The sum of the probabilities of the allocations to it: so many of them are expected to be its own.</source>
        <translation>La somme des probabilités des assignations à ce parent&#xa0;: autant d&apos;entre eux devraient être les siens.</translation>
    </message>
    <message>
        <source>Mates</source>
        <translation>Partenaires</translation>
    </message>
    <message>
        <source>Collected parents with whom it has some of them.</source>
        <translation>Parents collectés avec lesquels il en a eu.</translation>
    </message>
    <message>
        <source>With UC</source>
        <translation>Avec UC</translation>
    </message>
    <message>
        <source>Offspring whose other parent is taken as uncollected.</source>
        <translation>Descendants dont l&apos;autre parent est pris pour non collecté.</translation>
    </message>
    <message>
        <source>Collected parents and their offspring</source>
        <translation>Parents collectés et leurs descendants</translation>
    </message>
    <message>
        <source>Show only parents whose name contains this.</source>
        <translation>Montre seulement les parents dont le nom contient ceci.</translation>
    </message>
    <message>
        <source>Show only parents with offspring, or without.</source>
        <translation>Montre seulement les parents avec descendants, ou sans.</translation>
    </message>
    <message>
        <source>%1 of %2 collected parents have no offspring here.</source>
        <translation>%1 des %2 parents collectés n&apos;ont pas de descendants ici.</translation>
    </message>
    <message>
        <source>Show the offspring of the chosen parent (Enter, or a double click).</source>
        <translation>Montre les descendants du parent choisi (Entrée ou double clic).</translation>
    </message>
    <message>
        <source>all parents</source>
        <translation>tous les parents</translation>
    </message>
    <message>
        <source>with offspring</source>
        <translation>avec descendants</translation>
    </message>
    <message>
        <source>without offspring</source>
        <translation>sans descendants</translation>
    </message>
    <message>
        <source>%1 of %2 parents</source>
        <translation>%1 sur %2 parents</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>collected parents</source>
        <translation>parents collectés</translation>
    </message>
    <message>
        <source>pseudo-collected parents</source>
        <translation>parents pseudo-collectés</translation>
    </message>
    <message>
        <source>uncollected parents</source>
        <translation>parents non collectés</translation>
    </message>
    <message>
        <source>collected males</source>
        <translation>mâles collectés</translation>
    </message>
    <message>
        <source>pseudo-collected males</source>
        <translation>mâles pseudo-collectés</translation>
    </message>
    <message>
        <source>uncollected males</source>
        <translation>mâles non collectés</translation>
    </message>
    <message>
        <source>collected females</source>
        <translation>femelles collectées</translation>
    </message>
    <message>
        <source>pseudo-collected females</source>
        <translation>femelles pseudo-collectées</translation>
    </message>
    <message>
        <source>uncollected females</source>
        <translation>femelles non collectées</translation>
    </message>
    <message>
        <source>%1 drawn from %2</source>
        <translation>%1, tirés de %2</translation>
    </message>
    <message>
        <source>true parents</source>
        <translation>vrais parents</translation>
    </message>
    <message>
        <source>%1 candidates, %2 in all</source>
        <translation>%1 candidats, %2 en tout</translation>
    </message>
    <message>
        <source>pseudo-offspring</source>
        <translation>pseudo-descendants</translation>
    </message>
    <message>
        <source>%1 x %2 iterations</source>
        <translation>%1 x %2 itérations</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>allocated with</source>
        <translation>assignés avec</translation>
    </message>
    <message>
        <source>seed</source>
        <translation>graine</translation>
    </message>
    <message>
        <source>last loci run</source>
        <translation>derniers locus calculés</translation>
    </message>
    <message>
        <source>random numbers</source>
        <translation>nombres aléatoires</translation>
    </message>
    <message>
        <source>modern</source>
        <translation>modernes</translation>
    </message>
    <message>
        <source>iterations run</source>
        <translation>itérations calculées</translation>
    </message>
    <message>
        <source>any allocation correct</source>
        <translation>assignation quelconque correcte</translation>
    </message>
    <message>
        <source>%1 (estimated probability in the population, standard error %2)</source>
        <translation>%1 (probabilité estimée dans la population, erreur standard %2)</translation>
    </message>
    <message>
        <source>Subsets of loci run: %1.</source>
        <translation>Sous-ensembles de locus calculés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The criterion %1 has been reached with %2 loci.</source>
        <translation>Le critère %1 a été atteint avec %2 locus.</translation>
    </message>
    <message>
        <source>No subset reached the criterion %1.</source>
        <translation>Aucun sous-ensemble n&apos;a atteint le critère %1.</translation>
    </message>
    <message>
        <source>Sexed simulation, PARENTAL</source>
        <translation>Simulation avec sexes, PARENTALE</translation>
    </message>
    <message>
        <source>Sexed simulation, PRE-PARENTAL</source>
        <translation>Simulation avec sexes, PRÉ-PARENTALE</translation>
    </message>
    <message>
        <source>Non-sexed simulation, PARENTAL</source>
        <translation>Simulation sans sexes, PARENTALE</translation>
    </message>
    <message>
        <source>Non-sexed simulation, PRE-PARENTAL</source>
        <translation>Simulation sans sexes, PRÉ-PARENTALE</translation>
    </message>
    <message>
        <source>the choice &quot;with the same transmission error&quot; beside the tolerance</source>
        <translation>le choix «&#xa0;avec la même erreur de transmission&#xa0;» à côté de la tolérance</translation>
    </message>
    <message>
        <source>Correct decisions by origin of the offspring</source>
        <translation>Décisions correctes selon l&apos;origine des descendants</translation>
    </message>
    <message>
        <source>correct, mean and sd</source>
        <translation>correct, moyenne et é.-t.</translation>
    </message>
    <message>
        <source>correct</source>
        <translation>correct</translation>
    </message>
    <message>
        <source>sd</source>
        <translation>é.-t.</translation>
    </message>
    <message>
        <source>Correct allocations in the population, by number of loci</source>
        <translation>Assignations correctes dans la population, selon le nombre de locus</translation>
    </message>
    <message>
        <source>estimated probability</source>
        <translation>probabilité estimée</translation>
    </message>
    <message>
        <source>any, of these pseudo-offspring</source>
        <translation>quelconque, de ces pseudo-descendants</translation>
    </message>
    <message>
        <source>Estimated probability to be correct, in the population</source>
        <translation>Probabilité estimée d&apos;être correct, dans la population</translation>
    </message>
    <message>
        <source>mean and sd</source>
        <translation>moyenne et é.-t.</translation>
    </message>
    <message>
        <source>se</source>
        <translation>e. s.</translation>
    </message>
    <message>
        <source>Subsets of loci</source>
        <translation>Sous-ensembles de locus</translation>
    </message>
    <message>
        <source>names of loci</source>
        <translation>noms de locus</translation>
    </message>
    <message>
        <source>Show only subsets that contain all these loci, with blanks between them; parts of names will do.</source>
        <translation>Montre seulement les sous-ensembles qui contiennent tous ces locus, séparés par des espaces&#xa0;; des parties de noms suffisent.</translation>
    </message>
    <message>
        <source>Show only subsets of one size, or the best of each.</source>
        <translation>Montre seulement les sous-ensembles d&apos;une taille, ou le meilleur de chacune.</translation>
    </message>
    <message>
        <source>Any allocation correct, best subset of each size</source>
        <translation>Assignation quelconque correcte, meilleur sous-ensemble de chaque taille</translation>
    </message>
    <message>
        <source>any correct</source>
        <translation>quelconque correcte</translation>
    </message>
    <message>
        <source>best subset</source>
        <translation>meilleur sous-ensemble</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>Files an&amp;d settings</source>
        <translation>Fic&amp;hiers et réglages</translation>
    </message>
    <message>
        <source>Show which files and settings this run had, and what it wrote.</source>
        <translation>Montre quels fichiers et réglages ce calcul avait, et ce qu&apos;il a écrit.</translation>
    </message>
    <message>
        <source>How far can this be tr&amp;usted?</source>
        <translation>Quelle c&amp;onfiance y accorder&#xa0;?</translation>
    </message>
    <message>
        <source>Simulate offspring of these parents, whose origin is known, and see how often such allocations are right. The screens are filled in for you; the figures come back here.</source>
        <translation>Simule des descendants de ces parents, dont l&apos;origine est connue, et montre combien de fois de telles assignations sont justes. Les écrans sont remplis pour vous&#xa0;; les chiffres reviennent ici.</translation>
    </message>
    <message>
        <source>Summary of the run</source>
        <translation>Résumé du calcul</translation>
    </message>
    <message>
        <source>Offspring to check</source>
        <translation>Descendants à vérifier</translation>
    </message>
    <message>
        <source>Choose a line to see the offspring, locus by locus.</source>
        <translation>Choisissez une ligne pour voir le descendant, locus par locus.</translation>
    </message>
    <message>
        <source>To chec&amp;k:</source>
        <translation>À &amp;vérifier&#xa0;:</translation>
    </message>
    <message>
        <source>Cannot open file &quot;%1&quot;!</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;»&#xa0;!</translation>
    </message>
    <message>
        <source>The names of loci file holds no locus!</source>
        <translation>Le fichier des noms de locus ne contient aucun locus&#xa0;!</translation>
    </message>
    <message>
        <source>A locus name has more than %1 characters!</source>
        <translation>Un nom de locus a plus de %1 caractères&#xa0;!</translation>
    </message>
    <message>
        <source>Two loci have the same name!</source>
        <translation>Deux locus ont le même nom&#xa0;!</translation>
    </message>
    <message>
        <source>The file of %1 holds no individual!</source>
        <translation>Le fichier (%1) ne contient aucun individu&#xa0;!</translation>
    </message>
    <message>
        <source>A sample has no defined allele at a locus!</source>
        <translation>Un échantillon n&apos;a aucun allèle défini à un locus&#xa0;!</translation>
    </message>
    <message>
        <source>The male and the female file hold different numbers of separators!</source>
        <translation>Les fichiers des mâles et des femelles ont des nombres différents de séparateurs&#xa0;!</translation>
    </message>
    <message>
        <source>Simulation files have no separators!</source>
        <translation>Les fichiers de simulation n&apos;ont pas de séparateurs&#xa0;!</translation>
    </message>
    <message>
        <source>A record has a wrong number of fields!</source>
        <translation>Un enregistrement a un mauvais nombre de champs&#xa0;!</translation>
    </message>
    <message>
        <source>A genotype field is not all digits!</source>
        <translation>Un champ de génotype n&apos;est pas fait que de chiffres&#xa0;!</translation>
    </message>
    <message>
        <source>A genotype field has another number of digits!</source>
        <translation>Un champ de génotype a un autre nombre de chiffres&#xa0;!</translation>
    </message>
    <message>
        <source>An allele has more than %1 digits!</source>
        <translation>Un allèle a plus de %1 chiffres&#xa0;!</translation>
    </message>
    <message>
        <source>A name has more than %1 characters!</source>
        <translation>Un nom a plus de %1 caractères&#xa0;!</translation>
    </message>
    <message>
        <source>A name holds a character that cannot be shown!</source>
        <translation>Un nom contient un caractère qui ne peut pas être montré&#xa0;!</translation>
    </message>
    <message>
        <source>A name is not written in UTF-8!</source>
        <translation>Un nom n&apos;est pas écrit en UTF-8&#xa0;!</translation>
    </message>
    <message>
        <source>A parent has a name that stands for no parent!</source>
        <translation>Un parent a un nom qui désigne l&apos;absence de parent&#xa0;!</translation>
    </message>
    <message>
        <source>There is no individual of that name!</source>
        <translation>Il n&apos;y a pas d&apos;individu de ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>A name stands for more than one individual!</source>
        <translation>Un nom désigne plus d&apos;un individu&#xa0;!</translation>
    </message>
    <message>
        <source>An offspring has two lines!</source>
        <translation>Un descendant a deux lignes&#xa0;!</translation>
    </message>
    <message>
        <source>A line holds other words than it should!</source>
        <translation>Une ligne contient d&apos;autres mots qu&apos;elle ne devrait&#xa0;!</translation>
    </message>
    <message>
        <source>There is no group of parents of that number!</source>
        <translation>Il n&apos;y a pas de groupe de parents de ce numéro&#xa0;!</translation>
    </message>
    <message>
        <source>No pair of parents is left for an offspring!</source>
        <translation>Il ne reste aucun couple de parents pour un descendant&#xa0;!</translation>
    </message>
    <message>
        <source>There is no locus of that name!</source>
        <translation>Il n&apos;y a pas de locus de ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>Choose at least one locus!</source>
        <translation>Choisissez au moins un locus&#xa0;!</translation>
    </message>
    <message>
        <source>Fewer loci are in use than the number of loci to start with!</source>
        <translation>Moins de locus sont utilisés que le nombre de locus au départ&#xa0;!</translation>
    </message>
    <message>
        <source>There would be %1 subsets of loci!</source>
        <translation>Il y aurait %1 sous-ensembles de locus&#xa0;!</translation>
    </message>
    <message>
        <source>The number of iterations must be above 0!</source>
        <translation>Le nombre d&apos;itérations doit être supérieur à 0&#xa0;!</translation>
    </message>
    <message>
        <source>The number of pseudo-offspring must be above 0!</source>
        <translation>Le nombre de pseudo-descendants doit être supérieur à 0&#xa0;!</translation>
    </message>
    <message>
        <source>The number of pseudo-collected parents must be above 0!</source>
        <translation>Le nombre de parents pseudo-collectés doit être supérieur à 0&#xa0;!</translation>
    </message>
    <message>
        <source>That number of parents is not possible!</source>
        <translation>Ce nombre de parents n&apos;est pas possible&#xa0;!</translation>
    </message>
    <message>
        <source>The estimated numbers of parents must not be negative, and not all 0!</source>
        <translation>Les nombres estimés de parents ne doivent pas être négatifs, ni tous nuls&#xa0;!</translation>
    </message>
    <message>
        <source>There are too few parents for the pseudo-offspring!</source>
        <translation>Il y a trop peu de parents pour les pseudo-descendants&#xa0;!</translation>
    </message>
    <message>
        <source>A standard error to run until lies above 0 and below 1!</source>
        <translation>Une erreur standard à atteindre est supérieure à 0 et inférieure à 1&#xa0;!</translation>
    </message>
    <message>
        <source>A number is missing!</source>
        <translation>Il manque un nombre&#xa0;!</translation>
    </message>
    <message>
        <source>A whole number is wanted!</source>
        <translation>Il faut un nombre entier&#xa0;!</translation>
    </message>
    <message>
        <source>A number is wanted!</source>
        <translation>Il faut un nombre&#xa0;!</translation>
    </message>
    <message>
        <source>Enter numbers with a decimal point!</source>
        <translation>Entrez des nombres avec un point décimal&#xa0;!</translation>
    </message>
    <message>
        <source>A probability is not understood!</source>
        <translation>Une probabilité n&apos;est pas comprise&#xa0;!</translation>
    </message>
    <message>
        <source>That seed is not possible!</source>
        <translation>Cette graine n&apos;est pas possible&#xa0;!</translation>
    </message>
    <message>
        <source>That number of threads is not possible!</source>
        <translation>Ce nombre de fils d&apos;exécution n&apos;est pas possible&#xa0;!</translation>
    </message>
    <message>
        <source>A level of confidence lies between 0.5 and 1!</source>
        <translation>Un niveau de confiance est compris entre 0.5 et 1&#xa0;!</translation>
    </message>
    <message>
        <source>There is no such kind of file to keep!</source>
        <translation>Il n&apos;y a pas de telle sorte de fichier à garder&#xa0;!</translation>
    </message>
    <message>
        <source>Choose files to keep, or none!</source>
        <translation>Choisissez des fichiers à garder, ou aucun&#xa0;!</translation>
    </message>
    <message>
        <source>There are no such random numbers!</source>
        <translation>Il n&apos;y a pas de tels nombres aléatoires&#xa0;!</translation>
    </message>
    <message>
        <source>A share of undefined loci lies from 0 to below 1!</source>
        <translation>Une part de locus non définis va de 0 à moins de 1&#xa0;!</translation>
    </message>
    <message>
        <source>There is no such way to count the undefined alleles of a sample!</source>
        <translation>Il n&apos;y a pas de telle façon de compter les allèles non définis d&apos;un échantillon&#xa0;!</translation>
    </message>
    <message>
        <source>These choices do not go together!</source>
        <translation>Ces choix ne vont pas ensemble&#xa0;!</translation>
    </message>
    <message>
        <source>There is no such form of export!</source>
        <translation>Il n&apos;y a pas de telle forme d&apos;export&#xa0;!</translation>
    </message>
    <message>
        <source>The export cannot be made!</source>
        <translation>L&apos;export ne peut pas être fait&#xa0;!</translation>
    </message>
    <message>
        <source>A probability lies between 0 and 1!</source>
        <translation>Une probabilité est comprise entre 0 et 1&#xa0;!</translation>
    </message>
    <message>
        <source>Choose one file of parents, or one of males and one of females!</source>
        <translation>Choisissez un fichier de parents, ou un de mâles et un de femelles&#xa0;!</translation>
    </message>
    <message>
        <source>Choose options for parents, or with --sexed for males and females!</source>
        <translation>Choisissez des options pour les parents, ou avec --sexed pour les mâles et les femelles&#xa0;!</translation>
    </message>
    <message>
        <source>Choose collected or pseudo-collected parents!</source>
        <translation>Choisissez des parents collectés ou pseudo-collectés&#xa0;!</translation>
    </message>
    <message>
        <source>The run would destroy one of its own input files!</source>
        <translation>Le calcul détruirait l&apos;un de ses propres fichiers d&apos;entrée&#xa0;!</translation>
    </message>
    <message>
        <source>%1 Choose another project name, or add --replace.</source>
        <translation>%1 Choisissez un autre nom de projet, ou ajoutez --replace.</translation>
    </message>
    <message>
        <source>The unfinished run cannot be resumed!</source>
        <translation>Le calcul inachevé ne peut pas être repris&#xa0;!</translation>
    </message>
    <message>
        <source>This is not a run record!</source>
        <translation>Ceci n&apos;est pas un journal d&apos;exécution&#xa0;!</translation>
    </message>
    <message>
        <source>This run record cannot be used!</source>
        <translation>Ce journal d&apos;exécution ne peut pas être utilisé&#xa0;!</translation>
    </message>
    <message>
        <source>An input file has changed since the recorded run!</source>
        <translation>Un fichier d&apos;entrée a changé depuis le calcul enregistré&#xa0;!</translation>
    </message>
    <message>
        <source>The run may differ from the recorded one.</source>
        <translation>Le calcul peut différer de celui qui est enregistré.</translation>
    </message>
    <message>
        <source>Reading the files</source>
        <translation>Lecture des fichiers</translation>
    </message>
    <message>
        <source>Allocating</source>
        <translation>Assignation</translation>
    </message>
    <message>
        <source>Weighing the evidence</source>
        <translation>Pesée des indices</translation>
    </message>
    <message>
        <source>Simulating</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Scoring how sure the allocations are</source>
        <translation>Évaluation de la sûreté des assignations</translation>
    </message>
    <message>
        <source>Writing the transmission matrices</source>
        <translation>Écriture des matrices de transmission</translation>
    </message>
    <message>
        <source>Writing the reports</source>
        <translation>Écriture des rapports</translation>
    </message>
    <message>
        <source>Reading the results</source>
        <translation>Lecture des résultats</translation>
    </message>
    <message>
        <source>subset %1 of %2</source>
        <translation>sous-ensemble %1 sur %2</translation>
    </message>
    <message>
        <source>Stopped. The results of earlier runs are as they were.</source>
        <translation>Arrêté. Les résultats des calculs précédents sont tels qu&apos;ils étaient.</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 mots</translation>
    </message>
    <message>
        <source>%1 word</source>
        <translation>%1 mot</translation>
    </message>
    <message>
        <source>%1 individuals</source>
        <translation>%1 individus</translation>
    </message>
    <message>
        <source>%1 individual</source>
        <translation>%1 individu</translation>
    </message>
    <message>
        <source>%1 individuals in %2 groups</source>
        <translation>%1 individus en %2 groupes</translation>
    </message>
    <message>
        <source>%1 individuals in %2 groups (%3 empty)</source>
        <translation>%1 individus en %2 groupes (%3 vides)</translation>
    </message>
    <message>
        <source>%1 individual in %2 groups</source>
        <translation>%1 individu en %2 groupes</translation>
    </message>
    <message>
        <source>%1 loci</source>
        <translation>%1 locus</translation>
    </message>
    <message>
        <source>%1 locus</source>
        <translation>%1 locus</translation>
    </message>
    <message>
        <source>%1 digits per field</source>
        <translation>%1 chiffres par champ</translation>
    </message>
    <message>
        <source>no missing genotypes</source>
        <translation>aucun génotype manquant</translation>
    </message>
    <message>
        <source>%1 missing genotypes</source>
        <translation>%1 génotypes manquants</translation>
    </message>
    <message>
        <source>%1 missing genotype</source>
        <translation>%1 génotype manquant</translation>
    </message>
    <message>
        <source>names twice: %1</source>
        <translation>noms en double&#xa0;: %1</translation>
    </message>
    <message>
        <source>name twice: %1</source>
        <translation>nom en double&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 loci: %2</source>
        <translation>%1 locus&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 locus: %2</source>
        <translation>%1 locus&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 populations</source>
        <translation>%1 populations</translation>
    </message>
    <message>
        <source>%1 population</source>
        <translation>%1 population</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>choose the names-of-loci file to see what is in it</source>
        <translation>choisissez le fichier des noms de locus pour voir ce qu&apos;il contient</translation>
    </message>
    <message>
        <source>correct the names-of-loci file to see what is in it</source>
        <translation>corrigez le fichier des noms de locus pour voir ce qu&apos;il contient</translation>
    </message>
    <message>
        <source>a table of loci</source>
        <translation>un tableau de locus</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>no individual, only separators</source>
        <translation>aucun individu, seulement des séparateurs</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 words left over, see line %3</source>
        <translation>le nombre de mots ne correspond pas à %1 locus&#xa0;: %2 mots de reste, voir la ligne %3</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 word left over, see line %3</source>
        <translation>le nombre de mots ne correspond pas à %1 locus&#xa0;: %2 mot de reste, voir la ligne %3</translation>
    </message>
    <message>
        <source>the number of words does not fit %1 loci: %2 words left over</source>
        <translation>le nombre de mots ne correspond pas à %1 locus&#xa0;: %2 mots de reste</translation>
    </message>
    <message>
        <source>line %1 does not hold a name and %2 genotypes</source>
        <translation>la ligne %1 n&apos;est pas faite d&apos;un nom et de %2 génotypes</translation>
    </message>
    <message>
        <source>%1 is no genotype, see line %2</source>
        <translation>%1 n&apos;est pas un génotype, voir la ligne %2</translation>
    </message>
    <message>
        <source>%1 fields are no genotypes, first %2 in line %3</source>
        <translation>%1 champs ne sont pas des génotypes, d&apos;abord %2 à la ligne %3</translation>
    </message>
    <message>
        <source>fields of %1 and %2 digits, see line %3</source>
        <translation>des champs de %1 et %2 chiffres, voir la ligne %3</translation>
    </message>
    <message>
        <source>fields of %1 to %2 digits, see line %3</source>
        <translation>des champs de %1 à %2 chiffres, voir la ligne %3</translation>
    </message>
    <message>
        <source>%1 digits per field: both alleles need the same number of digits</source>
        <translation>%1 chiffres par champ&#xa0;: les deux allèles doivent avoir le même nombre de chiffres</translation>
    </message>
    <message>
        <source>%1 digit per field: both alleles need the same number of digits</source>
        <translation>%1 chiffre par champ&#xa0;: les deux allèles doivent avoir le même nombre de chiffres</translation>
    </message>
    <message>
        <source>%1 digits per field: an allele has at most %2</source>
        <translation>%1 chiffres par champ&#xa0;: un allèle en a au plus %2</translation>
    </message>
    <message>
        <source>%1 genotypes with only one allele defined, first %2 in line %3</source>
        <translation>%1 génotypes avec un seul allèle défini, d&apos;abord %2 à la ligne %3</translation>
    </message>
    <message>
        <source>%1 genotype with only one allele defined, first %2 in line %3</source>
        <translation>%1 génotype avec un seul allèle défini, d&apos;abord %2 à la ligne %3</translation>
    </message>
    <message>
        <source>%1 names of more than %2 characters, first in line %3</source>
        <translation>%1 noms de plus de %2 caractères, d&apos;abord à la ligne %3</translation>
    </message>
    <message>
        <source>%1 name of more than %2 characters, first in line %3</source>
        <translation>%1 nom de plus de %2 caractères, d&apos;abord à la ligne %3</translation>
    </message>
    <message>
        <source>more than %1 individuals: %2</source>
        <translation>plus de %1 individus&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds the results of another flow (%2, of %3).</source>
        <translation>«&#xa0;%1&#xa0;» contient les résultats d&apos;un autre parcours (%2, du %3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds an unfinished run (%2, of %3).</source>
        <translation>«&#xa0;%1&#xa0;» contient un calcul inachevé (%2, du %3).</translation>
    </message>
    <message>
        <source>No Error</source>
        <translation>Sans erreur</translation>
    </message>
    <message>
        <source>Uniform (epsilon %1)</source>
        <translation>Uniforme (epsilon %1)</translation>
    </message>
    <message>
        <source>Non Uniform (%1)</source>
        <translation>Non uniforme (%1)</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>aucun choisi</translation>
    </message>
    <message>
        <source>%1 of %2 offspring have both parents in your files</source>
        <translation>%1 des %2 descendants ont leurs deux parents dans vos fichiers</translation>
    </message>
    <message>
        <source>%1 of %2 offspring has both parents in your files</source>
        <translation>%1 des %2 descendants a ses deux parents dans vos fichiers</translation>
    </message>
    <message>
        <source>none needs a look</source>
        <translation>aucun n&apos;est à revoir</translation>
    </message>
    <message>
        <source>%1 needs a look</source>
        <translation>%1 est à revoir</translation>
    </message>
    <message>
        <source>%1 need a look</source>
        <translation>%1 sont à revoir</translation>
    </message>
    <message>
        <source>%1 of %2 offspring are allocated to two collected parents; how sure that is was not computed.</source>
        <translation>%1 des %2 descendants sont assignés à deux parents collectés&#xa0;; à quel point c&apos;est sûr n&apos;a pas été calculé.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring is allocated to two collected parents; how sure that is was not computed.</source>
        <translation>%1 des %2 descendants est assigné à deux parents collectés&#xa0;; à quel point c&apos;est sûr n&apos;a pas été calculé.</translation>
    </message>
    <message>
        <source>%1 has a probability of %2 only</source>
        <translation>%1 n&apos;a qu&apos;une probabilité de %2</translation>
    </message>
    <message>
        <source>no locus is typed</source>
        <translation>aucun locus n&apos;est typé</translation>
    </message>
    <message>
        <source>no explanation is possible</source>
        <translation>aucune explication n&apos;est possible</translation>
    </message>
    <message>
        <source>the results are more probably wrong than right</source>
        <translation>les résultats sont plus probablement faux que justes</translation>
    </message>
    <message>
        <source>a parent is open</source>
        <translation>un parent est indécis</translation>
    </message>
    <message>
        <source>CM, CF: to a collected male or female. UCM, UCF: taken as uncollected.</source>
        <translation>CM, CF&#xa0;: à un mâle ou une femelle collectés. UCM, UCF&#xa0;: pris pour non collecté.</translation>
    </message>
    <message>
        <source>C: to a collected parent. UC: taken as uncollected.</source>
        <translation>C&#xa0;: à un parent collecté. UC&#xa0;: pris pour non collecté.</translation>
    </message>
    <message>
        <source>sides collected</source>
        <translation>côtés collectés</translation>
    </message>
    <message>
        <source>collected male</source>
        <translation>mâle collecté</translation>
    </message>
    <message>
        <source>collected female</source>
        <translation>femelle collectée</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>sûr</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>probable</translation>
    </message>
    <message>
        <source>open</source>
        <translation>indécis</translation>
    </message>
    <message>
        <source>not collected</source>
        <translation>non collecté</translation>
    </message>
    <message>
        <source>named</source>
        <translation>nommé</translation>
    </message>
    <message>
        <source>uncollected</source>
        <translation>non collecté</translation>
    </message>
    <message>
        <source>both parents named, each at 0.95 or more</source>
        <translation>les deux parents nommés, chacun à 0.95 ou plus</translation>
    </message>
    <message>
        <source>none open, one named below 0.95</source>
        <translation>aucun indécis, l&apos;un nommé au-dessous de 0.95</translation>
    </message>
    <message>
        <source>a parent cannot be told</source>
        <translation>un parent ne peut être déterminé</translation>
    </message>
    <message>
        <source>a parent is not in your files, the other is sure or not in them either</source>
        <translation>un parent n&apos;est pas dans vos fichiers, l&apos;autre est sûr ou n&apos;y est pas non plus</translation>
    </message>
    <message>
        <source>Effective number of breeders: none, because no parent is named for two offspring.</source>
        <translation>Nombre efficace de reproducteurs&#xa0;: aucun, car aucun parent n&apos;est nommé pour deux descendants.</translation>
    </message>
    <message>
        <source>%1 pairs</source>
        <translation>%1 paires</translation>
    </message>
    <message>
        <source>%1 pair</source>
        <translation>%1 paire</translation>
    </message>
    <message>
        <source>%1 of %2 sides</source>
        <translation>%1 des %2 côtés</translation>
    </message>
    <message>
        <source>%1 more share one named parent, and whether they share the other one is open</source>
        <translation>%1 autres partagent un parent nommé, sans qu&apos;on sache s&apos;ils partagent l&apos;autre</translation>
    </message>
    <message>
        <source>locus</source>
        <translation>locus</translation>
    </message>
    <message>
        <source>alleles</source>
        <translation>allèles</translation>
    </message>
    <message>
        <source>unit distance</source>
        <translation>distance unitaire</translation>
    </message>
    <message>
        <source>in step</source>
        <translation>au pas</translation>
    </message>
    <message>
        <source>typed parents</source>
        <translation>parents typés</translation>
    </message>
    <message>
        <source>typed offspring</source>
        <translation>descendants typés</translation>
    </message>
    <message>
        <source>observed heterozygosity</source>
        <translation>hétérozygotie observée</translation>
    </message>
    <message>
        <source>expected heterozygosity</source>
        <translation>hétérozygotie attendue</translation>
    </message>
    <message>
        <source>pic</source>
        <translation>PIC</translation>
    </message>
    <message>
        <source>exclusion one parent</source>
        <translation>exclusion un parent</translation>
    </message>
    <message>
        <source>exclusion second parent</source>
        <translation>exclusion second parent</translation>
    </message>
    <message>
        <source>exclusion pair</source>
        <translation>exclusion couple</translation>
    </message>
    <message>
        <source>homozygote mismatches</source>
        <translation>homozygotes incompatibles</translation>
    </message>
    <message>
        <source>null allele frequency</source>
        <translation>fréquence d&apos;allèles nuls</translation>
    </message>
    <message>
        <source>error rate</source>
        <translation>taux d&apos;erreur</translation>
    </message>
    <message>
        <source> (results for the last combination of loci only)</source>
        <translation> (résultats de la seule dernière combinaison de locus)</translation>
    </message>
    <message>
        <source>any</source>
        <translation>quelconque</translation>
    </message>
    <message>
        <source>male</source>
        <translation>mâle</translation>
    </message>
    <message>
        <source>female</source>
        <translation>femelle</translation>
    </message>
    <message>
        <source>any allocation</source>
        <translation>assignation quelconque</translation>
    </message>
    <message>
        <source>allocation to a collected parent</source>
        <translation>assignation à un parent collecté</translation>
    </message>
    <message>
        <source>allocation to a collected male</source>
        <translation>assignation à un mâle collecté</translation>
    </message>
    <message>
        <source>allocation to a collected female</source>
        <translation>assignation à une femelle collectée</translation>
    </message>
    <message>
        <source>allocation to an uncollected parent (UC)</source>
        <translation>assignation à un parent non collecté (UC)</translation>
    </message>
    <message>
        <source>in the population</source>
        <translation>dans la population</translation>
    </message>
    <message>
        <source>of these pseudo-offspring</source>
        <translation>de ces pseudo-descendants</translation>
    </message>
    <message>
        <source>TWO COLLECTED OR PSEUDO-COLLECTED PARENTS</source>
        <translation>DEUX PARENTS COLLECTÉS OU PSEUDO-COLLECTÉS</translation>
    </message>
    <message>
        <source>ONE COLLECTED OR PSEUDO-COLLECTED PARENT</source>
        <translation>UN PARENT COLLECTÉ OU PSEUDO-COLLECTÉ</translation>
    </message>
    <message>
        <source>ZERO COLLECTED OR PSEUDO-COLLECTED PARENT</source>
        <translation>AUCUN PARENT COLLECTÉ OU PSEUDO-COLLECTÉ</translation>
    </message>
    <message>
        <source>the classes weighed by their share in the population</source>
        <translation>les classes pondérées par leur part dans la population</translation>
    </message>
    <message>
        <source>pseudo-offspring from a (pseudo)collected male and a (pseudo)collected female</source>
        <translation>pseudo-descendants d&apos;un mâle (pseudo-)collecté et d&apos;une femelle (pseudo-)collectée</translation>
    </message>
    <message>
        <source>pseudo-offspring from a (pseudo)collected male and a uncollected female</source>
        <translation>pseudo-descendants d&apos;un mâle (pseudo-)collecté et d&apos;une femelle non collectée</translation>
    </message>
    <message>
        <source>pseudo-offspring from an uncollected male and a (pseudo)collected female</source>
        <translation>pseudo-descendants d&apos;un mâle non collecté et d&apos;une femelle (pseudo-)collectée</translation>
    </message>
    <message>
        <source>pseudo-offspring from an uncollected male and an uncollected female</source>
        <translation>pseudo-descendants d&apos;un mâle non collecté et d&apos;une femelle non collectée</translation>
    </message>
    <message>
        <source>all pseudo-offspring together</source>
        <translation>tous les pseudo-descendants ensemble</translation>
    </message>
    <message>
        <source>The pseudo-offspring hold errors and were allocated as if they held none: the figures describe strict exclusion, not an allocation with an error model, which %1 simulates.</source>
        <translation>Les pseudo-descendants contiennent des erreurs et ont été assignés comme s&apos;ils n&apos;en contenaient pas&#xa0;: les chiffres décrivent une exclusion stricte, non une assignation avec un modèle d&apos;erreur, que simule %1.</translation>
    </message>
    <message>
        <source>How many parents were not collected is not known: this run computed no probabilities.</source>
        <translation>On ne sait pas combien de parents n&apos;ont pas été collectés&#xa0;: ce calcul n&apos;a pas donné de probabilités.</translation>
    </message>
    <message>
        <source>Simulations have no groups of parents, as the parents of this run have.</source>
        <translation>Les simulations n&apos;ont pas de groupes de parents, comme en ont les parents de ce calcul.</translation>
    </message>
    <message>
        <source>This looks like %1</source>
        <translation>Ceci ressemble à %1</translation>
    </message>
    <message>
        <source>By the named parents %1 of offspring are full sibs and %2 half sibs, from %3 of parents</source>
        <translation>D&apos;après les parents nommés, %1 de descendants sont de pleins frères et %2 des demi-frères, de %3 de parents</translation>
    </message>
    <message>
        <source>Effective number of breeders: withheld, because only %1 are named; it takes %2 %.</source>
        <translation>Nombre efficace de reproducteurs&#xa0;: retenu, car seulement %1 sont nommés&#xa0;; il en faut %2 %.</translation>
    </message>
    <message>
        <source>Effective number of breeders: %1 (Waples and Waples 2011), from the %2 that are named; %3 left out.</source>
        <translation>Nombre efficace de reproducteurs&#xa0;: %1 (Waples et Waples 2011), d&apos;après les %2 qui sont nommés&#xa0;; %3 laissés de côté.</translation>
    </message>
    <message>
        <source>A simulation like this run (%1 x %2 pseudo-offspring) estimates how probably allocations are right in the population: %3</source>
        <translation>Une simulation semblable à ce calcul (%1 x %2 pseudo-descendants) estime la probabilité que les assignations soient justes dans la population&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1 (standard error %2)</source>
        <translation>%1 (erreur standard %2)</translation>
    </message>
    <message>
        <source>any allocation %1</source>
        <translation>assignation quelconque %1</translation>
    </message>
    <message>
        <source>allocation to a collected parent %1</source>
        <translation>assignation à un parent collecté %1</translation>
    </message>
    <message>
        <source>allocation to a collected male %1</source>
        <translation>assignation à un mâle collecté %1</translation>
    </message>
    <message>
        <source>allocation to a collected female %1</source>
        <translation>assignation à une femelle collectée %1</translation>
    </message>
    <message>
        <source>allocation to an uncollected parent (UC) %1</source>
        <translation>assignation à un parent non collecté (UC) %1</translation>
    </message>
    <message>
        <source>Parents with the same first 10 characters of their names are taken for one individual, so that equally likely pairs with them are not listed.</source>
        <translation>Des parents dont les noms ont les 10 premiers caractères en commun sont pris pour un seul individu, de sorte que les couples également probables avec eux ne sont pas cités.</translation>
    </message>
    <message>
        <source>Two records have the same name.</source>
        <translation>Deux enregistrements ont le même nom.</translation>
    </message>
    <message>
        <source>An individual stands among the parents and among the offspring.</source>
        <translation>Un individu figure parmi les parents et parmi les descendants.</translation>
    </message>
    <message>
        <source>Two individuals have the same genotypes at all loci in use.</source>
        <translation>Deux individus ont les mêmes génotypes à tous les locus utilisés.</translation>
    </message>
    <message>
        <source>The name of an offspring is also a sign for a parent that is not there.</source>
        <translation>Le nom d&apos;un descendant est aussi un signe pour un parent absent.</translation>
    </message>
    <message>
        <source>A spreadsheet would change a name.</source>
        <translation>Un tableur changerait un nom.</translation>
    </message>
    <message>
        <source>A negative probability has no meaning; the run uses it as it stands.</source>
        <translation>Une probabilité négative n&apos;a pas de sens&#xa0;; le calcul l&apos;utilise telle quelle.</translation>
    </message>
    <message>
        <source>Alleles with few digits are drawn coarsely: rare alleles and rare errors are lost. --random modern draws them all.</source>
        <translation>Des allèles de peu de chiffres sont tirés grossièrement&#xa0;: les allèles rares et les erreurs rares sont perdus. --random modern les tire tous.</translation>
    </message>
    <message>
        <source>The run takes more random numbers than there are before they repeat. --random modern has enough.</source>
        <translation>Le calcul prend plus de nombres aléatoires qu&apos;il n&apos;y en a avant qu&apos;ils ne se répètent. --random modern en a assez.</translation>
    </message>
    <message>
        <source>An option has no effect.</source>
        <translation>Une option est sans effet.</translation>
    </message>
    <message>
        <source>Undefined alleles of a sample count for its first allele, whose frequency they raise.</source>
        <translation>Les allèles non définis d&apos;un échantillon comptent pour son premier allèle, dont ils augmentent la fréquence.</translation>
    </message>
    <message>
        <source>&amp;Copy the folder</source>
        <translation>&amp;Copier le dossier</translation>
    </message>
    <message>
        <source>type, browse or drop a file here</source>
        <translation>tapez, parcourez ou déposez un fichier ici</translation>
    </message>
    <message>
        <source>Convert...</source>
        <translation>Convertir...</translation>
    </message>
    <message>
        <source>Convert: %1</source>
        <translation>Convertir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Make files that a run takes of this file of another program</source>
        <translation>Fait de ce fichier d&apos;un autre programme des fichiers qu&apos;un calcul accepte</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Browse for: %1</source>
        <translation>Parcourir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Look for the file in the folders of this computer</source>
        <translation>Chercher le fichier dans les dossiers de cet ordinateur</translation>
    </message>
    <message>
        <source>Text files (.txt) (*.txt);;Files of other programs (*.gen *.csv *.tsv *.xlsx *.dat *.str *.txt);;All files (*)</source>
        <translation>Fichiers texte (.txt) (*.txt);;Fichiers d&apos;autres programmes (*.gen *.csv *.tsv *.xlsx *.dat *.str *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>One file at a time can be dropped here.</source>
        <translation>Un seul fichier à la fois peut être déposé ici.</translation>
    </message>
    <message>
        <source>Cop&amp;y as command</source>
        <translation>Copier la comma&amp;nde</translation>
    </message>
    <message>
        <source>Copy the command line that does the same run, for a script or a cluster</source>
        <translation>Copie la ligne de commande qui fait le même calcul, pour un script ou une grappe</translation>
    </message>
    <message>
        <source>&lt;---  Back</source>
        <translation>&lt;---  Retour</translation>
    </message>
    <message>
        <source>To the screen before; what was typed stays</source>
        <translation>À l&apos;écran précédent&#xa0;; ce qui a été tapé reste</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check this screen and go on</source>
        <translation>Vérifier cet écran et continuer</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>Les résultats vont dans %1</translation>
    </message>
    <message>
        <source>The results of %1 will be replaced.</source>
        <translation>Les résultats du %1 seront remplacés.</translation>
    </message>
    <message>
        <source>The button &quot;Convert...&quot; below its field makes files of it that a run takes.</source>
        <translation>Le bouton «&#xa0;Convertir...&#xa0;» sous son champ en fait des fichiers qu&apos;un calcul accepte.</translation>
    </message>
    <message>
        <source>Replace them?</source>
        <translation>Les remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Go on with it? With No this run begins anew.</source>
        <translation>Le poursuivre&#xa0;? Avec Non, ce calcul recommence à zéro.</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>What the files were written for; recognised by what they hold.</source>
        <translation>Pour quoi les fichiers ont été écrits&#xa0;; reconnu à leur contenu.</translation>
    </message>
    <message>
        <source>&amp;Populations of offspring</source>
        <translation>&amp;Populations des descendants</translation>
    </message>
    <message>
        <source>Tick the populations whose members are offspring; all others are parents.</source>
        <translation>Cochez les populations dont les membres sont des descendants&#xa0;; toutes les autres sont des parents.</translation>
    </message>
    <message>
        <source>Parents with undefined loci</source>
        <translation>Parents aux locus non définis</translation>
    </message>
    <message>
        <source>Repeat lengths</source>
        <translation>Longueurs des répétitions</translation>
    </message>
    <message>
        <source>Loci whose alleles count repeats, with the length of a repeat in base pairs: Ssa85=4, Ssa197=2</source>
        <translation>Locus dont les allèles comptent des répétitions, avec la longueur d&apos;une répétition en paires de bases&#xa0;: Ssa85=4, Ssa197=2</translation>
    </message>
    <message>
        <source>Missing code</source>
        <translation>Code manquant</translation>
    </message>
    <message>
        <source>One more word for an allele that was not typed, beside 0, -9, NA and the like.</source>
        <translation>Un mot de plus pour un allèle non typé, outre 0, -9, NA et semblables.</translation>
    </message>
    <message>
        <source>Loci to keep</source>
        <translation>Locus à garder</translation>
    </message>
    <message>
        <source>Names between commas; empty: all loci.</source>
        <translation>Noms entre virgules&#xa0;; vide&#xa0;: tous les locus.</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>The sheet of a workbook; empty: the first one.</source>
        <translation>La feuille d&apos;un classeur&#xa0;; vide&#xa0;: la première.</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Colonne des noms</translation>
    </message>
    <message>
        <source>The column that names the individuals.</source>
        <translation>La colonne qui nomme les individus.</translation>
    </message>
    <message>
        <source>Column of sexes</source>
        <translation>Colonne des sexes</translation>
    </message>
    <message>
        <source>m, male, 1 or f, female, 2.</source>
        <translation>m, male, 1 ou f, female, 2.</translation>
    </message>
    <message>
        <source>Column of populations</source>
        <translation>Colonne des populations</translation>
    </message>
    <message>
        <source>Populations of parents become groups.</source>
        <translation>Les populations de parents deviennent des groupes.</translation>
    </message>
    <message>
        <source>Column of roles</source>
        <translation>Colonne des rôles</translation>
    </message>
    <message>
        <source>The column that says parent or offspring.</source>
        <translation>La colonne qui dit parent (parent) ou descendant (offspring).</translation>
    </message>
    <message>
        <source>Rows per individual</source>
        <translation>Lignes par individu</translation>
    </message>
    <message>
        <source>How many rows of the file an individual has.</source>
        <translation>Combien de lignes du fichier a un individu.</translation>
    </message>
    <message>
        <source>Before the genotypes</source>
        <translation>Avant les génotypes</translation>
    </message>
    <message>
        <source>What stands there in each row, between commas: id, group, sex, role, other.</source>
        <translation>Ce qui s&apos;y trouve à chaque ligne, entre virgules&#xa0;: id, group, sex, role, other.</translation>
    </message>
    <message>
        <source>Populations do not become groups</source>
        <translation>Les populations ne deviennent pas des groupes</translation>
    </message>
    <message>
        <source>All parents may meet, whatever population they are from.</source>
        <translation>Tous les parents peuvent se rencontrer, de quelque population qu&apos;ils soient.</translation>
    </message>
    <message>
        <source>Refuse repeated names</source>
        <translation>Refuser les noms répétés</translation>
    </message>
    <message>
        <source>Individuals without a name, or with that of another, are a fault; else they are named by population and row.</source>
        <translation>Des individus sans nom, ou avec celui d&apos;un autre, sont une faute&#xa0;; sinon ils sont nommés par population et ligne.</translation>
    </message>
    <message>
        <source>Refuse half a genotype</source>
        <translation>Refuser un demi-génotype</translation>
    </message>
    <message>
        <source>A genotype of which one allele is missing is a fault; else it counts as not typed.</source>
        <translation>Un génotype dont un allèle manque est une faute&#xa0;; sinon il compte comme non typé.</translation>
    </message>
    <message>
        <source>The first individuals, locus by locus</source>
        <translation>Les premiers individus, locus par locus</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>who</source>
        <translation>qui</translation>
    </message>
    <message>
        <source>population</source>
        <translation>population</translation>
    </message>
    <message>
        <source>Convert files of another program</source>
        <translation>Convertir des fichiers d&apos;un autre programme</translation>
    </message>
    <message>
        <source>What is to be settled, and what was found</source>
        <translation>Ce qui reste à régler, et ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Everything at once, with file, line and cell; can be copied</source>
        <translation>Tout à la fois, avec fichier, ligne et cellule&#xa0;; peut être copié</translation>
    </message>
    <message>
        <source>&amp;The first individuals</source>
        <translation>Les premiers &amp;individus</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message>
        <source>Choose a folder that is there already</source>
        <translation>Choisir un dossier qui existe déjà</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>Write the files and fill in the fields of the flow</source>
        <translation>Écrit les fichiers et remplit les champs du parcours</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Back to the flow; nothing is written (Esc)</source>
        <translation>Retour au parcours&#xa0;; rien n&apos;est écrit (Échap)</translation>
    </message>
    <message>
        <source>Name a file to be converted.</source>
        <translation>Nommez un fichier à convertir.</translation>
    </message>
    <message>
        <source>Name the folder for the converted files.</source>
        <translation>Nommez le dossier des fichiers convertis.</translation>
    </message>
    <message>
        <source>&quot;Import report.txt&quot; in the folder will tell all that is done.</source>
        <translation>«&#xa0;Import report.txt&#xa0;» dans le dossier dira tout ce qui est fait.</translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Attention&#xa0;: </translation>
    </message>
    <message>
        <source>There are no offspring among them.</source>
        <translation>Il n&apos;y a pas de descendants parmi eux.</translation>
    </message>
    <message>
        <source>Ready to convert.</source>
        <translation>Prêt à convertir.</translation>
    </message>
    <message>
        <source>To be settled first:</source>
        <translation>À régler d&apos;abord&#xa0;:</translation>
    </message>
    <message>
        <source>Folder for the files</source>
        <translation>Dossier des fichiers</translation>
    </message>
    <message>
        <source>These files are in the folder &quot;%1&quot; already and would be replaced or removed: %2. Go on?</source>
        <translation>Ces fichiers sont déjà dans le dossier «&#xa0;%1&#xa0;» et seraient remplacés ou supprimés&#xa0;: %2. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Avancement du calcul</translation>
    </message>
    <message>
        <source>Stop; the results of earlier runs stay as they are</source>
        <translation>Arrêter&#xa0;; les résultats des calculs précédents restent tels quels</translation>
    </message>
    <message>
        <source>A run is going on. Stop it? The results of earlier runs stay as they are.</source>
        <translation>Un calcul est en cours. L&apos;arrêter&#xa0;? Les résultats des calculs précédents restent tels quels.</translation>
    </message>
    <message>
        <source>Out of memory. The results of earlier runs are as they were.</source>
        <translation>Mémoire insuffisante. Les résultats des calculs précédents sont tels qu&apos;ils étaient.</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Arrêt en cours...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>The converted files have other loci than the names-of-loci file of this simulation, or in another order. Theirs are in &quot;%1&quot;: all files of a simulation need the same.</source>
        <translation>Les fichiers convertis ont d&apos;autres locus que le fichier des noms de locus de cette simulation, ou dans un autre ordre. Les leurs sont dans «&#xa0;%1&#xa0;»&#xa0;: tous les fichiers d&apos;une simulation doivent avoir les mêmes.</translation>
    </message>
    <message>
        <source>&amp;Try it with example data</source>
        <translation>&amp;Essayer avec des données d&apos;exemple</translation>
    </message>
    <message>
        <source>Opens an allocation with the files of a made-up lake: press OK on its three screens to see a result</source>
        <translation>Ouvre une assignation avec les fichiers d&apos;un lac imaginaire&#xa0;: appuyez sur OK à ses trois écrans pour voir un résultat</translation>
    </message>
    <message>
        <source>On to the main menu</source>
        <translation>Vers le menu principal</translation>
    </message>
    <message>
        <source>Results go to</source>
        <translation>Les résultats vont dans</translation>
    </message>
    <message>
        <source>Working &amp;folder...</source>
        <translation>Dossier de &amp;travail...</translation>
    </message>
    <message>
        <source>Choose where project folders are made</source>
        <translation>Choisir où les dossiers de projet sont créés</translation>
    </message>
    <message>
        <source>Open &amp;run record...</source>
        <translation>Ouvrir un &amp;journal d&apos;exécution...</translation>
    </message>
    <message>
        <source>Fill all screens as they were for an earlier run</source>
        <translation>Remplit tous les écrans comme ils l&apos;étaient pour un calcul précédent</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>&amp;Exemples</translation>
    </message>
    <message>
        <source>Open a flow with the files of a made-up study</source>
        <translation>Ouvre un parcours avec les fichiers d&apos;une étude imaginaire</translation>
    </message>
    <message>
        <source>Allocation, &amp;non-sexed: a lake</source>
        <translation>Assignation, &amp;sans sexes&#xa0;: un lac</translation>
    </message>
    <message>
        <source>Allocation, &amp;sexed: two ponds</source>
        <translation>Assignation, &amp;avec sexes&#xa0;: deux étangs</translation>
    </message>
    <message>
        <source>Simulations, n&amp;on-sexed: after netting the lake</source>
        <translation>Simulations, sa&amp;ns sexes&#xa0;: après la pêche dans le lac</translation>
    </message>
    <message>
        <source>Simulations, s&amp;exed: before netting the ponds</source>
        <translation>Simulations, a&amp;vec sexes&#xa0;: avant la pêche dans les étangs</translation>
    </message>
    <message>
        <source>A&amp;bout KALDO...</source>
        <translation>À &amp;propos de KALDO...</translation>
    </message>
    <message>
        <source>Version, licence, how to cite</source>
        <translation>Version, licence, comment citer</translation>
    </message>
    <message>
        <source>&amp;Open results</source>
        <translation>Ouvrir des &amp;résultats</translation>
    </message>
    <message>
        <source>Show the results of a finished run again, without running it</source>
        <translation>Montre à nouveau les résultats d&apos;un calcul terminé, sans le refaire</translation>
    </message>
    <message>
        <source>&amp;Another folder...</source>
        <translation>&amp;Autre dossier...</translation>
    </message>
    <message>
        <source>&amp;Forget these folders</source>
        <translation>&amp;Oublier ces dossiers</translation>
    </message>
    <message>
        <source>Folder with the results of a run</source>
        <translation>Dossier avec les résultats d&apos;un calcul</translation>
    </message>
    <message>
        <source>Open run record</source>
        <translation>Ouvrir un journal d&apos;exécution</translation>
    </message>
    <message>
        <source>Run records (*.toml);;All files (*)</source>
        <translation>Journaux d&apos;exécution (*.toml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Working folder</source>
        <translation>Dossier de travail</translation>
    </message>
    <message>
        <source>Cannot use the folder %1</source>
        <translation>Impossible d&apos;utiliser le dossier %1</translation>
    </message>
    <message>
        <source>Made when the first screen of a flow is confirmed</source>
        <translation>Créé quand le premier écran d&apos;un parcours est confirmé</translation>
    </message>
    <message>
        <source>Results are open. Close them, too? They stay in their folders and can be opened again.</source>
        <translation>Des résultats sont ouverts. Les fermer aussi&#xa0;? Ils restent dans leurs dossiers et peuvent être rouverts.</translation>
    </message>
    <message>
        <source>The numbers of groups differ: %1 of males, %2 of females. No run can start.</source>
        <translation>Les nombres de groupes diffèrent&#xa0;: %1 de mâles, %2 de femelles. Aucun calcul ne peut commencer.</translation>
    </message>
    <message>
        <source>   &amp;All loci                </source>
        <translation>   &amp;Tous les locus                </translation>
    </message>
    <message>
        <source>Every locus takes part, whatever is marked in its row.</source>
        <translation>Chaque locus participe, quoi qu&apos;il soit coché à sa ligne.</translation>
    </message>
    <message>
        <source>  Print  </source>
        <translation>  Imprimer  </translation>
    </message>
    <message>
        <source>  Keep in file  </source>
        <translation>  Garder dans un fichier  </translation>
    </message>
    <message>
        <source>  Random numbers  </source>
        <translation>  Nombres aléatoires  </translation>
    </message>
    <message>
        <source>calendar time</source>
        <translation>heure du calendrier</translation>
    </message>
    <message>
        <source>%1 is not a whole number from 0 to 4294967295</source>
        <translation>%1 n&apos;est pas un nombre entier de 0 à 4294967295</translation>
    </message>
    <message>
        <source>%1: %2 is not %3</source>
        <translation>%1&#xa0;: %2 n&apos;est pas %3</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>a number with a decimal point</source>
        <translation>un nombre avec un point décimal</translation>
    </message>
    <message>
        <source>  Type of simulations  </source>
        <translation>  Type de simulations  </translation>
    </message>
    <message>
        <source>     Simulations run with :     </source>
        <translation>     Simulations calculées avec&#xa0;:     </translation>
    </message>
    <message>
        <source>C&amp;hoose loci...</source>
        <translation>C&amp;hoisir les locus...</translation>
    </message>
    <message>
        <source>Leave loci out of the subsets or of the sequence</source>
        <translation>Laisse des locus hors des sous-ensembles ou de la séquence</translation>
    </message>
    <message>
        <source>Subsets and sequences are formed from all %1 loci.</source>
        <translation>Sous-ensembles et séquences sont formés de tous les %1 locus.</translation>
    </message>
    <message>
        <source>Subsets and sequences are formed from %1 of %2 loci.</source>
        <translation>Sous-ensembles et séquences sont formés de %1 des %2 locus.</translation>
    </message>
    <message>
        <source>the maximal offset tolerance is %1, which is no whole number</source>
        <translation>la tolérance d&apos;écart maximale est %1, qui n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>  Allocation of the pseudo-offspring  </source>
        <translation>  Assignation des pseudo-descendants  </translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>The loci in use.</source>
        <translation>Les locus utilisés.</translation>
    </message>
    <message>
        <source>To the locus before, in the order of the names-of-loci file</source>
        <translation>Au locus précédent, dans l&apos;ordre du fichier des noms de locus</translation>
    </message>
    <message>
        <source>To the next locus, in the order of the names-of-loci file</source>
        <translation>Au locus suivant, dans l&apos;ordre du fichier des noms de locus</translation>
    </message>
    <message>
        <source>Loc&amp;us:</source>
        <translation>Locu&amp;s&#xa0;:</translation>
    </message>
    <message>
        <source>%1 gene copies typed in parents and offspring together, of %2.</source>
        <translation>%1 copies de gènes typées chez parents et descendants ensemble, sur %2.</translation>
    </message>
    <message>
        <source>&amp;Offspring</source>
        <translation>Desce&amp;ndants</translation>
    </message>
    <message>
        <source>The parents of every offspring, and why, locus by locus.</source>
        <translation>Les parents de chaque descendant, et pourquoi, locus par locus.</translation>
    </message>
    <message>
        <source>&amp;Parents</source>
        <translation>&amp;Parents</translation>
    </message>
    <message>
        <source>The offspring and mates of every collected parent, and who has none.</source>
        <translation>Les descendants et partenaires de chaque parent collecté, et qui n&apos;en a pas.</translation>
    </message>
    <message>
        <source>Se&amp;quence</source>
        <translation>Sé&amp;quence</translation>
    </message>
    <message>
        <source>How the proportions settle as loci are added.</source>
        <translation>Comment les proportions se stabilisent à mesure que des locus s&apos;ajoutent.</translation>
    </message>
    <message>
        <source>&amp;Alleles</source>
        <translation>&amp;Allèles</translation>
    </message>
    <message>
        <source>The allele frequencies of each locus.</source>
        <translation>Les fréquences alléliques de chaque locus.</translation>
    </message>
    <message>
        <source>Loc&amp;i</source>
        <translation>&amp;Locus</translation>
    </message>
    <message>
        <source>What each locus is worth, and what may be wrong with it.</source>
        <translation>Ce que vaut chaque locus, et ce qui peut clocher chez lui.</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>What was found, what to check, and what was run.</source>
        <translation>Ce qui a été trouvé, ce qu&apos;il faut vérifier et ce qui a été calculé.</translation>
    </message>
    <message>
        <source>mean + sd</source>
        <translation>moyenne + é.-t.</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>mean - sd</source>
        <translation>moyenne - é.-t.</translation>
    </message>
    <message>
        <source>Chart; its numbers stand in the table beside it.</source>
        <translation>Graphique&#xa0;; ses chiffres sont dans le tableau à côté.</translation>
    </message>
    <message>
        <source>A chart is saved as .svg, .pdf or .png, its numbers as .csv. &quot;%1&quot; has none of these endings.</source>
        <translation>Un graphique s&apos;enregistre en .svg, .pdf ou .png, ses chiffres en .csv. «&#xa0;%1&#xa0;» n&apos;a aucune de ces terminaisons.</translation>
    </message>
    <message>
        <source>%1: UC, offset above the tolerance of %2 at %3.</source>
        <translation>%1&#xa0;: UC, écart au-dessus de la tolérance de %2 à %3.</translation>
    </message>
    <message>
        <source>%1: accepted, errors assumed: %2.</source>
        <translation>%1&#xa0;: accepté, erreurs supposées&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1: accepted without errors.</source>
        <translation>%1&#xa0;: accepté sans erreurs.</translation>
    </message>
    <message>
        <source>%1: accepted, offsets 0.</source>
        <translation>%1&#xa0;: accepté, écarts 0.</translation>
    </message>
    <message>
        <source>Choose an offspring in the table above.</source>
        <translation>Choisissez un descendant dans le tableau ci-dessus.</translation>
    </message>
    <message>
        <source>No pair of collected parents can have produced %1 under the error model: both parents count as UC.</source>
        <translation>Aucun couple de parents collectés ne peut avoir produit %1 sous le modèle d&apos;erreur&#xa0;: les deux parents comptent comme UC.</translation>
    </message>
    <message>
        <source>  An allele of the offspring is in neither parent at %1.</source>
        <translation>  Un allèle du descendant n&apos;est chez aucun parent à %1.</translation>
    </message>
    <message>
        <source>Runner-up</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>or %1 (p %2)</source>
        <translation>ou %1 (p %2)</translation>
    </message>
    <message>
        <source>Locus</source>
        <translation>Locus</translation>
    </message>
    <message>
        <source>Unit (bp)</source>
        <translation>Unité (pb)</translation>
    </message>
    <message>
        <source>Offset (units)</source>
        <translation>Écart (unités)</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>Distance %1 (bp)</source>
        <translation>Distance %1 (pb)</translation>
    </message>
    <message>
        <source>Offset %1 (units)</source>
        <translation>Écart %1 (unités)</translation>
    </message>
    <message>
        <source>The most probable other candidate, in the place of parent %1 beside the same mate.</source>
        <translation>L&apos;autre candidat le plus probable, à la place du parent %1 à côté du même partenaire.</translation>
    </message>
    <message>
        <source>Genotypes locus by locus</source>
        <translation>Génotypes locus par locus</translation>
    </message>
    <message>
        <source>Pairs that explain the offspring equally well. The first one decided.</source>
        <translation>Couples qui expliquent le descendant aussi bien. Le premier a décidé.</translation>
    </message>
    <message>
        <source>Copy the selected loci, or all, with their heads.</source>
        <translation>Copie les locus choisis, ou tous, avec leurs en-têtes.</translation>
    </message>
    <message>
        <source>%1 of %2: %3 x %4</source>
        <translation>%1 sur %2&#xa0;: %3 x %4</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Files in &quot;%1&quot;:</source>
        <translation>Fichiers dans «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>Export the results</source>
        <translation>Exporter les résultats</translation>
    </message>
    <message>
        <source>Write the results in this form</source>
        <translation>Écrire les résultats sous cette forme</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Write the files</source>
        <translation>Écrit les fichiers</translation>
    </message>
    <message>
        <source>Nothing is written (Esc)</source>
        <translation>Rien n&apos;est écrit (Échap)</translation>
    </message>
    <message>
        <source>Tick the forms in which the results are wanted.</source>
        <translation>Cochez les formes sous lesquelles vous voulez les résultats.</translation>
    </message>
    <message>
        <source>These files are in the folder already and would be replaced: %1. Go on?</source>
        <translation>Ces fichiers sont déjà dans le dossier et seraient remplacés&#xa0;: %1. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>all offspring</source>
        <translation>tous les descendants</translation>
    </message>
    <message>
        <source>several pairs</source>
        <translation>plusieurs couples</translation>
    </message>
    <message>
        <source>no pair</source>
        <translation>aucun couple</translation>
    </message>
    <message>
        <source>to check</source>
        <translation>à vérifier</translation>
    </message>
    <message>
        <source>A parent is open, or what the results say is less probable than not.</source>
        <translation>Un parent est indécis, ou ce que disent les résultats est plutôt improbable.</translation>
    </message>
    <message>
        <source>offspring of %1</source>
        <translation>descendants de %1</translation>
    </message>
    <message>
        <source>%1 of %2 offspring</source>
        <translation>%1 sur %2 descendants</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Export table</source>
        <translation>Exporter le tableau</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>&amp;Copier la commande</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Write the results for other programs: tables, a workbook, pedigrees</source>
        <translation>Écrit les résultats pour d&apos;autres programmes&#xa0;: tableaux, classeur, pedigrees</translation>
    </message>
    <message>
        <source>HT&amp;ML report</source>
        <translation>Rapport HT&amp;ML</translation>
    </message>
    <message>
        <source>Write the results as a page to read and print, and open it</source>
        <translation>Écrit les résultats comme une page à lire et à imprimer, et l&apos;ouvre</translation>
    </message>
    <message>
        <source>%1 - %2 - results</source>
        <translation>%1 - %2 - résultats</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>Show the reports of this run: %1</source>
        <translation>Montrer les rapports de ce calcul&#xa0;: %1</translation>
    </message>
    <message>
        <source>Copy the command line that repeats this run, for a script or a colleague.</source>
        <translation>Copie la ligne de commande qui répète ce calcul, pour un script ou un collègue.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close this window. The reports stay in their folder.</source>
        <translation>Ferme cette fenêtre. Les rapports restent dans leur dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be opened.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>C&amp;hercher&#xa0;:</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Sélection&#xa0;:</translation>
    </message>
    <message>
        <source>Copy the selected rows with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Copie les lignes choisies avec leurs en-têtes, à coller dans un tableur (Ctrl+C).</translation>
    </message>
    <message>
        <source>Save all rows shown, in their order, as comma-separated values.</source>
        <translation>Enregistre toutes les lignes montrées, dans leur ordre, comme valeurs séparées par des virgules.</translation>
    </message>
    <message>
        <source>What was simulated, and how often decisions were correct.</source>
        <translation>Ce qui a été simulé, et combien de fois les décisions étaient correctes.</translation>
    </message>
    <message>
        <source>S&amp;pread</source>
        <translation>Dis&amp;persion</translation>
    </message>
    <message>
        <source>How much the share of correct decisions varies between iterations.</source>
        <translation>Combien la part de décisions correctes varie d&apos;une itération à l&apos;autre.</translation>
    </message>
    <message>
        <source>Every estimated probability that an allocation is correct, and how exact it is.</source>
        <translation>Chaque probabilité estimée qu&apos;une assignation soit correcte, et sa précision.</translation>
    </message>
    <message>
        <source>What each further locus adds.</source>
        <translation>Ce qu&apos;apporte chaque locus de plus.</translation>
    </message>
    <message>
        <source>Su&amp;bsets</source>
        <translation>Sous-e&amp;nsembles</translation>
    </message>
    <message>
        <source>Which loci, and how many, are enough.</source>
        <translation>Quels locus, et combien, suffisent.</translation>
    </message>
    <message>
        <source>The origin of the pseudo-offspring: which true parents are collected.</source>
        <translation>L&apos;origine des pseudo-descendants&#xa0;: quels vrais parents sont collectés.</translation>
    </message>
    <message>
        <source>Cl&amp;ass:</source>
        <translation>Cla&amp;sse&#xa0;:</translation>
    </message>
    <message>
        <source>Correct decisions by iteration: %1%2</source>
        <translation>Décisions correctes par itération&#xa0;: %1%2</translation>
    </message>
    <message>
        <source>iteration</source>
        <translation>itération</translation>
    </message>
    <message>
        <source>mean %1, sd %2 (%3; %4 pseudo-offspring per iteration)</source>
        <translation>moyenne %1, é.-t. %2 (%3&#xa0;; %4 pseudo-descendants par itération)</translation>
    </message>
    <message>
        <source>NA: the class has no pseudo-offspring (%1)</source>
        <translation>NA&#xa0;: la classe n&apos;a pas de pseudo-descendants (%1)</translation>
    </message>
    <message>
        <source>★ best of %1</source>
        <translation>★ meilleur de %1</translation>
    </message>
    <message>
        <source>Loci</source>
        <translation>Locus</translation>
    </message>
    <message>
        <source>Any correct</source>
        <translation>Quelconque correcte</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Meilleur</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Place in the order of the run.</source>
        <translation>Place dans l&apos;ordre du calcul.</translation>
    </message>
    <message>
        <source>Place when the subset with which allocations are most often correct comes first; of equals that of fewer loci.</source>
        <translation>Place quand le sous-ensemble avec lequel les assignations sont le plus souvent correctes vient en premier&#xa0;; à égalité, celui qui a moins de locus.</translation>
    </message>
    <message>
        <source>Number of loci.</source>
        <translation>Nombre de locus.</translation>
    </message>
    <message>
        <source>Estimated probability that any allocation is correct, in the population.</source>
        <translation>Probabilité estimée qu&apos;une assignation quelconque soit correcte, dans la population.</translation>
    </message>
    <message>
        <source>Standard error of the estimated probability.</source>
        <translation>Erreur standard de la probabilité estimée.</translation>
    </message>
    <message>
        <source>Which subset of its size makes allocations most often correct; the first of equals.</source>
        <translation>Quel sous-ensemble de sa taille rend les assignations le plus souvent correctes&#xa0;; à égalité, le premier.</translation>
    </message>
    <message>
        <source>The loci of the subset.</source>
        <translation>Les locus du sous-ensemble.</translation>
    </message>
    <message>
        <source>all subsets</source>
        <translation>tous les sous-ensembles</translation>
    </message>
    <message>
        <source>best of each size</source>
        <translation>meilleur de chaque taille</translation>
    </message>
    <message numerus="yes">
        <source>%n loci</source>
        <comment>%n locus</comment>
        <translation>
            <numerusform>%n locus</numerusform>
            <numerusform>%n locus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 subsets</source>
        <translation>%1 sur %2 sous-ensembles</translation>
    </message>
    <message numerus="yes">
        <source>%n offspring have several equally likely pairs (%1 more than five): the first pair found decided. See them in the tab Offspring.</source>
        <comment>%n offspring has several equally likely pairs (%1 more than five): the first pair found decided. See them in the tab Offspring.</comment>
        <translation>
            <numerusform>%n descendant a plusieurs couples également probables (%1 plus de cinq)&#xa0;: le premier trouvé a décidé. Voyez-les dans l&apos;onglet Descendants.</numerusform>
            <numerusform>%n descendants ont plusieurs couples également probables (%1 plus de cinq)&#xa0;: le premier trouvé a décidé. Voyez-les dans l&apos;onglet Descendants.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n offspring have no possible pair among the collected parents; both of their parents count as uncollected (UC).</source>
        <comment>%n offspring has no possible pair among the collected parents; both of its parents count as uncollected (UC).</comment>
        <translation>
            <numerusform>%n descendant n&apos;a aucun couple possible parmi les parents collectés&#xa0;; ses deux parents comptent comme non collectés (UC).</numerusform>
            <numerusform>%n descendants n&apos;ont aucun couple possible parmi les parents collectés&#xa0;; leurs deux parents comptent comme non collectés (UC).</numerusform>
        </translation>
    </message>
    <message>
        <source>tables for R and Python</source>
        <translation>tableaux pour R et Python</translation>
    </message>
    <message>
        <source>a workbook</source>
        <translation>un classeur</translation>
    </message>
    <message>
        <source>a page to be read</source>
        <translation>une page à lire</translation>
    </message>
    <message>
        <source>pedigree files</source>
        <translation>fichiers de pedigree</translation>
    </message>
    <message>
        <source>a name, a file and a column of settings stand at its head</source>
        <translation>un nom, un fichier et une colonne de réglages sont à sa tête</translation>
    </message>
    <message>
        <source>line %1 holds four numbers, and %2 names of loci follow</source>
        <translation>la ligne %1 contient quatre nombres, suivis de %2 noms de locus</translation>
    </message>
    <message>
        <source>line %1 counts %2 loci, %3 samples and %4 populations</source>
        <translation>la ligne %1 compte %2 locus, %3 échantillons et %4 populations</translation>
    </message>
    <message>
        <source>its heads are Sample Name, Marker, Allele 1 and Allele 2</source>
        <translation>ses en-têtes sont Sample Name, Marker, Allele 1 et Allele 2</translation>
    </message>
    <message>
        <source>line %1 is POP, behind the names of loci</source>
        <translation>la ligne %1 est POP, après les noms de locus</translation>
    </message>
    <message>
        <source>line %1 holds heads, %2 of them</source>
        <translation>la ligne %1 contient des en-têtes, au nombre de %2</translation>
    </message>
    <message>
        <source>it begins with ##fileformat=VCF</source>
        <translation>il commence par ##fileformat=VCF</translation>
    </message>
    <message>
        <source>Order by &amp;information</source>
        <translation>Ordonner par &amp;information</translation>
    </message>
    <message>
        <source>The locus that excludes most random pairs of parents enters first, as by exclusion_pair in &quot;Loci.tsv&quot;</source>
        <translation>Le locus qui exclut le plus de couples de parents au hasard entre en premier, selon exclusion_pair dans «&#xa0;Loci.tsv&#xa0;»</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected parents</source>
        <translation>%1 parents collectés et %2 non collectés</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected males</source>
        <translation>%1 mâles collectés et %2 non collectés</translation>
    </message>
    <message>
        <source>%1 collected and %2 uncollected females</source>
        <translation>%1 femelles collectées et %2 non collectées</translation>
    </message>
    <message>
        <source>Made with errors (%1), allocated as if there were none: strict exclusion.</source>
        <translation>Produits avec des erreurs (%1), assignés comme s&apos;il n&apos;y en avait pas&#xa0;: exclusion stricte.</translation>
    </message>
    <message>
        <source>By the share of random pairs that each locus excludes: %1.</source>
        <translation>D&apos;après la part de couples au hasard que chaque locus exclut&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Offspring of %1. %2</source>
        <translation>Descendants de %1. %2</translation>
    </message>
    <message>
        <source>%1 (%2 % of the population uncollected)</source>
        <translation>%1 (%2 % de la population non collectés)</translation>
    </message>
    <message>
        <source>Allocated with the model of error of the run (%1), --allocate-with run, as real offspring are.</source>
        <translation>Assignés avec le modèle d&apos;erreur du calcul (%1), --allocate-with run, comme de vrais descendants.</translation>
    </message>
    <message>
        <source>Allocated with the model of error of the run (%1), as real offspring are.</source>
        <translation>Assignés avec le modèle d&apos;erreur du calcul (%1), comme de vrais descendants.</translation>
    </message>
    <message>
        <source>Made with errors (%1), allocated with another model (%2).</source>
        <translation>Produits avec des erreurs (%1), assignés avec un autre modèle (%2).</translation>
    </message>
    <message>
        <source>%1 (NA after one iteration)</source>
        <translation>%1 (NA après une itération)</translation>
    </message>
    <message>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 à %3)</translation>
    </message>
    <message>
        <source>Estimated probability to be correct, in the population, with its 95 % interval:</source>
        <translation>Probabilité estimée d&apos;être correct, dans la population, avec son intervalle à 95 %&#xa0;:</translation>
    </message>
    <message>
        <source>from</source>
        <translation>de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source> How sure the allocations are is not shown in full: %1.</source>
        <translation> La sûreté des assignations n&apos;est pas montrée en entier&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source> Of %n offspring with more than five pairs the reports name the first one alone, so that tables, which count them, cannot be exported.</source>
        <comment> Of %n offspring with more than five pairs the reports name the first one alone, so that tables, which count them, cannot be exported.</comment>
        <translation>
            <numerusform> De %n descendant avec plus de cinq couples, les rapports ne nomment que le premier&#xa0;; les tableaux, qui les comptent, ne peuvent donc pas être exportés.</numerusform>
            <numerusform> De %n descendants avec plus de cinq couples, les rapports ne nomment que le premier&#xa0;; les tableaux, qui les comptent, ne peuvent donc pas être exportés.</numerusform>
        </translation>
    </message>
    <message>
        <source> An HTML report and a workbook need more digits than the reports have: run again for them.</source>
        <translation> Un rapport HTML et un classeur demandent plus de décimales que n&apos;en ont les rapports&#xa0;: il faut pour cela refaire le calcul.</translation>
    </message>
    <message>
        <source> Figures have the digits of the reports; NA stands where these tell none. Exports need all digits: run again for them.</source>
        <translation> Les chiffres ont les décimales des rapports&#xa0;; NA figure là où ceux-ci n&apos;en donnent pas. Les exportations les demandent toutes&#xa0;: il faut pour cela refaire le calcul.</translation>
    </message>
    <message>
        <source>This is the record of simulations. Only allocations can be compared.</source>
        <translation>Ceci est le journal de simulations. Seules des assignations peuvent être comparées.</translation>
    </message>
    <message>
        <source>Run record of the other run</source>
        <translation>Journal d&apos;exécution de l&apos;autre calcul</translation>
    </message>
    <message>
        <source>Parents have to be typed at every locus unless a run allows otherwise; the list below tells what each way costs.</source>
        <translation>Les parents doivent être typés à chaque locus, sauf si un calcul permet le contraire&#xa0;; la liste ci-dessous dit ce que coûte chaque solution.</translation>
    </message>
    <message>
        <source>keep: leave nothing out; the run allows undefined parents</source>
        <translation>keep&#xa0;: ne rien laisser de côté&#xa0;; le calcul permet des parents non définis</translation>
    </message>
    <message>
        <source>Parents may be undefined at some loci</source>
        <translation>Des parents peuvent être non définis à certains locus</translation>
    </message>
    <message>
        <source>A parent that could not be typed at a locus is tried there with what its population would have. Else every parent has to be typed at every locus.</source>
        <translation>Un parent qui n&apos;a pas pu être typé à un locus y est essayé avec ce qu&apos;aurait sa population. Sinon, chaque parent doit être typé à chaque locus.</translation>
    </message>
    <message>
        <source>Genotypes of the parents collected: a name and one field per locus, no undefined alleles.</source>
        <translation>Génotypes des parents collectés&#xa0;: un nom et un champ par locus, aucun allèle non défini.</translation>
    </message>
    <message numerus="yes">
        <source>%n undefined loci</source>
        <comment>%n undefined locus</comment>
        <translation>
            <numerusform>%n locus non défini</numerusform>
            <numerusform>%n locus non définis</numerusform>
        </translation>
    </message>
    <message>
        <source>Matin&amp;gs</source>
        <translation>Accouplemen&amp;ts</translation>
    </message>
    <message>
        <source>Who had offspring with whom, as a table that is a picture.</source>
        <translation>Qui a eu des descendants avec qui, en un tableau qui est une image.</translation>
    </message>
    <message>
        <source>Compare with another run...</source>
        <translation>Comparer avec un autre calcul...</translation>
    </message>
    <message>
        <source>Show which offspring have another pair in another run (Ctrl+D).</source>
        <translation>Montre quels descendants ont un autre couple dans un autre calcul (Ctrl+D).</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>Neither parent carries an allele of the offspring, or its locus is undefined.</source>
        <translation>Aucun parent ne porte un allèle du descendant, ou son locus n&apos;est pas défini.</translation>
    </message>
    <message>
        <source>%1 exact   %2 within the tolerance (an error)   %3 above it (UC)   %4 one allele in neither parent   %5 undefined</source>
        <translation>%1 exact   %2 dans la tolérance (une erreur)   %3 au-dessus (UC)   %4 un allèle chez aucun parent   %5 non défini</translation>
    </message>
    <message>
        <source>Families, the largest first</source>
        <translation>Familles, la plus grande d&apos;abord</translation>
    </message>
    <message>
        <source>Show offsp&amp;ring</source>
        <translation>&amp;Voir les descendants</translation>
    </message>
    <message>
        <source>Show the offspring of the chosen family (Enter, or a double click). A double click on a name shows all of that parent.</source>
        <translation>Montre les descendants de la famille choisie (Entrée ou double clic). Un double clic sur un nom montre tous ceux de ce parent.</translation>
    </message>
    <message>
        <source>Go to the families of parents and offspring whose name contains this; Enter goes to the next.</source>
        <translation>Va aux familles des parents et des descendants dont le nom contient ceci&#xa0;; Entrée va à la suivante.</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>T&amp;out le tableau</translation>
    </message>
    <message>
        <source>Make the cells so small that the table is seen at once.</source>
        <translation>Réduit les cellules pour que le tableau se voie d&apos;un coup.</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>rien trouvé</translation>
    </message>
    <message>
        <source>Copy the selected families of the list, or all, with their heads, to be pasted into a spreadsheet.</source>
        <translation>Copie les familles choisies de la liste, ou toutes, avec leurs en-têtes, à coller dans un tableur.</translation>
    </message>
    <message>
        <source>Save the list of families as comma-separated values.</source>
        <translation>Enregistre la liste des familles en valeurs séparées par des virgules.</translation>
    </message>
    <message>
        <source>%1 of %2 found</source>
        <translation>%1 sur %2 trouvés</translation>
    </message>
    <message numerus="yes">
        <source>%n offspring</source>
        <comment>%n offspring</comment>
        <translation>
            <numerusform>%n descendant</numerusform>
            <numerusform>%n descendants</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 with %3</source>
        <translation>%1&#xa0;: %2 avec %3</translation>
    </message>
    <message numerus="yes">
        <source>%n mates</source>
        <comment>%n mate</comment>
        <translation>
            <numerusform>%n partenaire</numerusform>
            <numerusform>%n partenaires</numerusform>
        </translation>
    </message>
    <message>
        <source>Only likely</source>
        <translation>Seulement probables</translation>
    </message>
    <message>
        <source>Offspring of the parents (rows) with each other (columns)</source>
        <translation>Descendants des parents (lignes) entre eux (colonnes)</translation>
    </message>
    <message>
        <source>Offspring of males (rows) and females (columns)</source>
        <translation>Descendants des mâles (lignes) et des femelles (colonnes)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1: no offspring</source>
        <translation>%1&#xa0;: aucun descendant</translation>
    </message>
    <message>
        <source>, %1 only likely</source>
        <translation>, dont %1 seulement probables</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 autres</translation>
    </message>
    <message>
        <source>%1 of %2 stand here</source>
        <translation>%1 sur %2 figurent ici</translation>
    </message>
    <message>
        <source>; %1 left out, because %2</source>
        <translation>&#xa0;; %1 laissés de côté&#xa0;: %2</translation>
    </message>
    <message>
        <source>not one pair alone explains them best</source>
        <translation>plus d&apos;un couple les explique le mieux</translation>
    </message>
    <message>
        <source>. %1 of %2 collected parents have none of them and are left out, too.</source>
        <translation>. %1 des %2 parents collectés n&apos;en ont aucun et sont aussi laissés de côté.</translation>
    </message>
    <message>
        <source> How sure the pairs are was not computed.</source>
        <translation> La sûreté des couples n&apos;a pas été calculée.</translation>
    </message>
    <message>
        <source>Number and colour: offspring. UC: not collected.</source>
        <translation>Nombre et couleur&#xa0;: descendants. UC&#xa0;: non collecté.</translation>
    </message>
    <message>
        <source> %1: some of them are no more than likely.</source>
        <translation> %1&#xa0;: certains d&apos;entre eux ne sont que probables.</translation>
    </message>
    <message>
        <source> Every pair stands twice, so that a row has all mates of its parent.</source>
        <translation> Chaque couple figure deux fois, de sorte qu&apos;une ligne a tous les partenaires de son parent.</translation>
    </message>
    <message>
        <source>A cell has the number of offspring of two parents.</source>
        <translation>Une cellule a le nombre de descendants de deux parents.</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Sexe</translation>
    </message>
    <message>
        <source>From which file the parent is: of the males or of the females.</source>
        <translation>De quel fichier vient le parent&#xa0;: des mâles ou des femelles.</translation>
    </message>
    <message>
        <source>Offspring in both runs</source>
        <translation>Descendants dans les deux calculs</translation>
    </message>
    <message>
        <source>Show only offspring whose name, or the name of a parent in either run, contains this.</source>
        <translation>Ne montre que les descendants dont le nom, ou celui d&apos;un parent dans l&apos;un des calculs, contient ceci.</translation>
    </message>
    <message>
        <source>Show only offspring with another pair, all, or those of one run alone.</source>
        <translation>Ne montre que les descendants avec un autre couple, tous, ou ceux d&apos;un seul calcul.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>This: %1</source>
        <translation>Celui-ci&#xa0;: %1</translation>
    </message>
    <message>
        <source>Other: %1</source>
        <translation>Autre&#xa0;: %1</translation>
    </message>
    <message>
        <source>other run only</source>
        <translation>autre calcul seulement</translation>
    </message>
    <message>
        <source>this run only</source>
        <translation>ce calcul seulement</translation>
    </message>
    <message>
        <source>another pair</source>
        <translation>autre couple</translation>
    </message>
    <message>
        <source>same pair</source>
        <translation>même couple</translation>
    </message>
    <message>
        <source>This run: %1</source>
        <translation>Ce calcul&#xa0;: %1</translation>
    </message>
    <message>
        <source>Other run: %1</source>
        <translation>Autre calcul&#xa0;: %1</translation>
    </message>
    <message>
        <source>Both have the same input files.</source>
        <translation>Les deux ont les mêmes fichiers d&apos;entrée.</translation>
    </message>
    <message>
        <source>Their input files differ:</source>
        <translation>Leurs fichiers d&apos;entrée diffèrent&#xa0;:</translation>
    </message>
    <message>
        <source>%1 - two runs compared</source>
        <translation>%1 - deux calculs comparés</translation>
    </message>
    <message>
        <source>in one run only</source>
        <translation>dans un seul calcul</translation>
    </message>
    <message>
        <source>Close this window.</source>
        <translation>Ferme cette fenêtre.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring of both runs have another pair</source>
        <translation>%1 sur %2 descendants des deux calculs ont un autre couple</translation>
    </message>
    <message>
        <source>%1 of %2 offspring of both runs has another pair</source>
        <translation>%1 sur %2 descendants des deux calculs a un autre couple</translation>
    </message>
    <message>
        <source>%1 in this run only, %2 in the other one only</source>
        <translation>%1 dans ce calcul seulement, %2 dans l&apos;autre seulement</translation>
    </message>
    <message>
        <source>known mothers</source>
        <translation>mères connues</translation>
    </message>
    <message>
        <source>candidates</source>
        <translation>candidats</translation>
    </message>
    <message>
        <source>How many parents were not collected is not in the reports of a run that counts relatives. Run it again to try its results.</source>
        <translation>Le nombre de parents non collectés n&apos;est pas dans les rapports d&apos;un calcul qui compte les apparentés. Refaites-le pour éprouver ses résultats.</translation>
    </message>
    <message>
        <source>By the estimate %1 parents were not collected. A simulation has room for %2 parents in all, so that %3 are drawn.</source>
        <translation>D&apos;après l&apos;estimation, %1 parents n&apos;ont pas été collectés. Une simulation a de la place pour %2 parents en tout, si bien que %3 sont tirés.</translation>
    </message>
    <message>
        <source>%1: %2 in this run only</source>
        <translation>%1&#xa0;: %2 dans ce calcul seulement</translation>
    </message>
    <message>
        <source>%1: %2 in the other run only</source>
        <translation>%1&#xa0;: %2 dans l&apos;autre calcul seulement</translation>
    </message>
    <message>
        <source>%1: %2 in this run, %3 with other contents in the other one</source>
        <translation>%1&#xa0;: %2 dans ce calcul, %3 avec un autre contenu dans l&apos;autre</translation>
    </message>
    <message>
        <source>none: the error model has a negative probability</source>
        <translation>aucune&#xa0;: le modèle d&apos;erreur a une probabilité négative</translation>
    </message>
    <message>
        <source>none: probabilities are not known</source>
        <translation>aucune&#xa0;: les probabilités ne sont pas connues</translation>
    </message>
    <message>
        <source>Pair besi&amp;de it:</source>
        <translation>Couple vo&amp;isin&#xa0;:</translation>
    </message>
    <message>
        <source>Copy geno&amp;types</source>
        <translation>Copier les &amp;génotypes</translation>
    </message>
    <message>
        <source>Cop&amp;y picture</source>
        <translation>Copier l&apos;&amp;image</translation>
    </message>
    <message>
        <source>S&amp;how its offspring</source>
        <translation>&amp;Voir ses descendants</translation>
    </message>
    <message>
        <source>Est&amp;imates</source>
        <translation>Es&amp;timations</translation>
    </message>
    <message>
        <source>Number of offspring</source>
        <translation>Descendants</translation>
    </message>
    <message>
        <source>%1 of %2 offspring are allocated to two collected parents; how sure that is was computed, but its report cannot be used.</source>
        <translation>%1 descendants sur %2 sont assignés à deux parents collectés&#xa0;; la certitude a été calculée, mais son rapport est inutilisable.</translation>
    </message>
    <message>
        <source>%1 of %2 offspring is allocated to two collected parents; how sure that is was computed, but its report cannot be used.</source>
        <translation>%1 descendant sur %2 est assigné à deux parents collectés&#xa0;; la certitude a été calculée, mais son rapport est inutilisable.</translation>
    </message>
    <message>
        <source>How many parents were not collected is not known: the report of how sure the run is cannot be used.</source>
        <translation>On ne sait pas combien de parents n&apos;ont pas été collectés&#xa0;: le rapport sur la certitude de l&apos;exécution est inutilisable.</translation>
    </message>
    <message>
        <source> How sure the pairs are was computed, but its report cannot be used.</source>
        <translation> La certitude des couples a été calculée, mais son rapport est inutilisable.</translation>
    </message>
    <message>
        <source>Step &amp;by step</source>
        <translation>&amp;Étape par étape</translation>
    </message>
    <message>
        <source>Which offspring have another pair after another step of the sequence.</source>
        <translation>Quels descendants ont un autre couple après une autre étape de la séquence.</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>Étape %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Offspring with another pair</source>
        <translation>Descendants avec un autre couple</translation>
    </message>
    <message>
        <source>A step of the sequence: its number and the locus that it adds.</source>
        <translation>Une étape de la séquence&#xa0;: son numéro et le locus qu&apos;elle ajoute.</translation>
    </message>
    <message>
        <source>S&amp;tep:</source>
        <translation>Étap&amp;e&#xa0;:</translation>
    </message>
    <message>
        <source>Besi&amp;de it:</source>
        <translation>A&amp;vec&#xa0;:</translation>
    </message>
    <message>
        <source>Copy the selected offspring, or all, with their heads, to be pasted into a spreadsheet (Ctrl+C).</source>
        <translation>Copie les descendants choisis, ou tous, avec leurs en-têtes, à coller dans un tableur (Ctrl+C).</translation>
    </message>
    <message>
        <source>The reports tell the pairs of the last step alone, so that of results opened again only numbers are compared. Run again to see which offspring have another pair.</source>
        <translation>Les rapports ne donnent que les couples de la dernière étape, de sorte que seuls les nombres de résultats rouverts sont comparés. Relancez l&apos;exécution pour voir quels descendants ont un autre couple.</translation>
    </message>
    <message>
        <source>%1: %2, then %3 (%4)</source>
        <translation>%1&#xa0;: %2, puis %3 (%4)</translation>
    </message>
    <message>
        <source>Offspring by class. %1</source>
        <translation>Descendants par classe. %1</translation>
    </message>
    <message>
        <source>%1 of %2 have another pair.</source>
        <translation>%1 sur %2 ont un autre couple.</translation>
    </message>
    <message>
        <source>sexes</source>
        <translation>sexes</translation>
    </message>
    <message>
        <source>known</source>
        <translation>connus</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non connus</translation>
    </message>
    <message>
        <source>tolerance</source>
        <translation>tolérance</translation>
    </message>
    <message>
        <source>undefined parents</source>
        <translation>parents indéfinis</translation>
    </message>
    <message>
        <source>sequence of loci</source>
        <translation>séquence de locus</translation>
    </message>
    <message>
        <source>how sure computed</source>
        <translation>certitude calculée</translation>
    </message>
    <message>
        <source>level of confidence</source>
        <translation>niveau de confiance</translation>
    </message>
    <message>
        <source>uncollected full sibs of candidates</source>
        <translation>pleins frères et sœurs non collectés des candidats</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>%1: %2 in this run, %3 in the other one</source>
        <translation>%1&#xa0;: %2 dans cette exécution, %3 dans l&apos;autre</translation>
    </message>
    <message>
        <source>Both have the same settings.</source>
        <translation>Les deux ont les mêmes réglages.</translation>
    </message>
    <message>
        <source>Their settings differ:</source>
        <translation>Leurs réglages diffèrent&#xa0;:</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>enregistrement %1</translation>
    </message>
    <message>
        <source>record %1 (%2)</source>
        <translation>enregistrement %1 (%2)</translation>
    </message>
    <message>
        <source>locus %1</source>
        <translation>locus %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>%1 has %2 digits, the first parents file uses %3</source>
        <translation>%1 a %2 chiffres, le premier fichier des parents en utilise %3</translation>
    </message>
    <message>
        <source>%1 has %2 digit, the first parents file uses %3</source>
        <translation>%1 a %2 chiffre, le premier fichier des parents en utilise %3</translation>
    </message>
    <message>
        <source>spreadsheets drop leading zeros: write them again or correct the field</source>
        <translation>les tableurs suppriment les zéros initiaux&#xa0;: rétablissez-les ou corrigez le champ</translation>
    </message>
    <message>
        <source>%1 has %2 digits for both alleles</source>
        <translation>%1 a %2 chiffres pour les deux allèles</translation>
    </message>
    <message>
        <source>%1 has %2 characters</source>
        <translation>%1 a %2 caractères</translation>
    </message>
    <message>
        <source>%1 has %2 character</source>
        <translation>%1 a %2 caractère</translation>
    </message>
    <message>
        <source>both alleles need the same number of digits</source>
        <translation>les deux allèles doivent avoir le même nombre de chiffres</translation>
    </message>
    <message>
        <source>is it &quot;%1&quot; without its leading zero?</source>
        <translation>est-ce «&#xa0;%1&#xa0;» sans son zéro initial&#xa0;?</translation>
    </message>
    <message>
        <source>%1 should be both allele sizes as digits side by side</source>
        <translation>%1 devrait donner les tailles des deux allèles, en chiffres côte à côte</translation>
    </message>
    <message>
        <source>%1 holds an undefined allele</source>
        <translation>%1 contient un allèle indéfini</translation>
    </message>
    <message>
        <source>fields after the name: %1, loci named: %2</source>
        <translation>champs après le nom&#xa0;: %1, locus nommés&#xa0;: %2</translation>
    </message>
    <message>
        <source>separators are read in parents files only</source>
        <translation>les séparateurs ne sont lus que dans les fichiers des parents</translation>
    </message>
    <message>
        <source>a separator stands alone on its line</source>
        <translation>un séparateur est seul sur sa ligne</translation>
    </message>
    <message>
        <source>write one name per locus</source>
        <translation>écrivez un nom par locus</translation>
    </message>
    <message>
        <source>%1 stands in line %2 already</source>
        <translation>%1 figure déjà à la ligne %2</translation>
    </message>
    <message>
        <source>it is %1</source>
        <translation>la valeur est %1</translation>
    </message>
    <message>
        <source>its report %1 is missing</source>
        <translation>son rapport %1 manque</translation>
    </message>
    <message>
        <source>its report %1 is not listed</source>
        <translation>son rapport %1 n&apos;est pas mentionné</translation>
    </message>
    <message>
        <source>its report %1 cannot be read</source>
        <translation>son rapport %1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>its report %1 has other contents: it was edited, or is of another run</source>
        <translation>son rapport %1 a un autre contenu&#xa0;: il a été modifié ou vient d&apos;une autre exécution</translation>
    </message>
    <message>
        <source>its report %1 does not say what such a report says</source>
        <translation>son rapport %1 ne dit pas ce que dit un tel rapport</translation>
    </message>
    <message>
        <source>it holds no individual</source>
        <translation>il ne contient aucun individu</translation>
    </message>
    <message>
        <source>an individual has no name</source>
        <translation>un individu n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>There is no parent among the individuals.</source>
        <translation>Il n&apos;y a aucun parent parmi les individus.</translation>
    </message>
    <message>
        <source>Another run is at work in &quot;%1&quot;. Wait for its end, or choose another project name.</source>
        <translation>Une autre exécution travaille dans «&#xa0;%1&#xa0;». Attendez sa fin, ou choisissez un autre nom de projet.</translation>
    </message>
    <message>
        <source>Another run is at work in &quot;%1&quot; (%2). Wait for its end, or choose another project name.</source>
        <translation>Une autre exécution travaille dans «&#xa0;%1&#xa0;» (%2). Attendez sa fin, ou choisissez un autre nom de projet.</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;; its new results are now all in place.</source>
        <translation>Une exécution antérieure s&apos;est arrêtée pendant qu&apos;elle remplaçait les résultats dans «&#xa0;%1&#xa0;»&#xa0;; ses nouveaux résultats sont maintenant tous en place.</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;; the results from before it are all back.</source>
        <translation>Une exécution antérieure s&apos;est arrêtée pendant qu&apos;elle remplaçait les résultats dans «&#xa0;%1&#xa0;»&#xa0;; les résultats d&apos;avant sont tous rétablis.</translation>
    </message>
    <message>
        <source>Cannot remove &quot;%1&quot; of an earlier run.</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;» d&apos;une exécution antérieure.</translation>
    </message>
    <message>
        <source>a folder of that name is in the way</source>
        <translation>un dossier de ce nom fait obstacle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Le disque est plein</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Le système de fichiers est en lecture seule</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>C&apos;est un dossier</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ce n&apos;est pas un dossier</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Le nom de fichier est trop long</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Le fichier est trop grand</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Le quota du disque est dépassé</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d&apos;entrée-sortie</translation>
    </message>
    <message>
        <source>%1 parents</source>
        <translation>%1 parents</translation>
    </message>
    <message>
        <source>%1 parent</source>
        <translation>%1 parent</translation>
    </message>
    <message>
        <source>%1 The earlier results could not be put back either: %2 Nothing is lost: &quot;kaldo check&quot; with this project, or the next run, goes on with it.</source>
        <translation>%1 Les résultats antérieurs n&apos;ont pas pu être rétablis non plus&#xa0;: %2 Rien n&apos;est perdu&#xa0;: «&#xa0;kaldo check&#xa0;» avec ce projet, ou la prochaine exécution, poursuit le travail.</translation>
    </message>
    <message>
        <source>%1 The results of earlier runs are as they were.</source>
        <translation>%1 Les résultats des exécutions antérieures sont inchangés.</translation>
    </message>
    <message>
        <source>Cannot replace &quot;%1&quot;: %2. Is it protected, or open in another program, such as a spreadsheet?</source>
        <translation>Impossible de remplacer «&#xa0;%1&#xa0;»&#xa0;: %2. Le fichier est-il protégé, ou ouvert dans un autre programme, comme un tableur&#xa0;?</translation>
    </message>
    <message>
        <source>Cannot replace &quot;%1&quot;: %2</source>
        <translation>Impossible de remplacer «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation>Impossible d&apos;ouvrir «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Impossible d&apos;écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot make the folder &quot;%1&quot;: %2</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot write into the folder &quot;%1&quot;: %2</source>
        <translation>Impossible d&apos;écrire dans le dossier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot make the workbook: %1</source>
        <translation>Impossible de créer le classeur&#xa0;: %1</translation>
    </message>
    <message>
        <source>An earlier run ended while it replaced the results in &quot;%1&quot;, which can neither be finished nor undone: %2</source>
        <translation>Une exécution antérieure s&apos;est arrêtée pendant qu&apos;elle remplaçait les résultats dans «&#xa0;%1&#xa0;», ce qui ne peut être ni achevé ni annulé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Who is a parent and who an offspring? Of %1 it is not known. Say it by file (--parents FILE --offspring FILE, or --males and --females), by --role COLUMN, or by --offspring-populations NAME,... (%2)</source>
        <translation>Qui est parent et qui est descendant&#xa0;? On ne le sait pas pour %1. Dites-le par fichier (--parents FILE --offspring FILE, ou --males et --females), par --role COLUMN, ou par --offspring-populations NAME,... (%2)</translation>
    </message>
    <message>
        <source>Who is a parent and who an offspring? Of %1 it is not known. Say it by file (--parents FILE --offspring FILE, or --males and --females), by --role COLUMN, or by --offspring-populations NAME,...</source>
        <translation>Qui est parent et qui est descendant&#xa0;? On ne le sait pas pour %1. Dites-le par fichier (--parents FILE --offspring FILE, ou --males et --females), par --role COLUMN, ou par --offspring-populations NAME,...</translation>
    </message>
    <message>
        <source>the sex of %1 is not known, here first, of %2 it is: tell all of them, or --no-sexes</source>
        <translation>le sexe est inconnu pour %1, ici en premier, et connu pour %2&#xa0;: indiquez-les tous, ou --no-sexes</translation>
    </message>
    <message>
        <source>The study would not run: %1</source>
        <translation>L&apos;étude ne pourrait pas être exécutée&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of %2 are undefined at some locus. Choose with --missing-parents what becomes of them:</source>
        <translation>%1 parmi %2 sont indéfinis à un locus. Choisissez avec --missing-parents ce qu&apos;ils deviennent&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2 is undefined at some locus. Choose with --missing-parents what becomes of them:</source>
        <translation>%1 parmi %2 est indéfini à un locus. Choisissez avec --missing-parents ce qu&apos;il devient&#xa0;:</translation>
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
        <translation>  keep              rien n&apos;est écarté&#xa0;; les exécutions ont besoin de --allow-undefined-parents</translation>
    </message>
    <message>
        <source>%1 left out (%2)</source>
        <translation>%1 écartés (%2)</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 écartés</translation>
    </message>
    <message>
        <source>%1 and %2 stay</source>
        <translation>%1 et %2 restent</translation>
    </message>
</context>
</TS>
