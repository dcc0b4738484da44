"""Small cases worked out by hand; the reference itself is tested against them."""

from allocation_reference import (MATRICES, MAX_LIKE, RESULTS, SEQUENCE, SERVICE, STEPPING,
                                  COMPLETED, OUT_OF_STEP, allocate, parse_arguments,
                                  write_reports)
from reference_input import Individual
from reference_search import Outcome, compare_locus, judge_first_pair, search_pairs
from reference_tables import Catalogue, is_out_of_step, single, unit_note

STARS = "*************************************\n\n"
STEPPING_HEAD = (
    "STEPPING ERROR FILE :\n\n"
    "Stepping condition :\t\tWithin each locus, the smallest allelic distance "
    "(difference in nbp)\n"
    "\t\thas to be larger than one and all other distances have to be multiples\n"
    "\t\t(of the smallest allelic distance).\n\n"
    "The following loci do not satisfy the stepping condition :\n\n")
LEGEND_ERRORS = (
    "# Errors :\tNumber of loci for which genotype error(s) not exceeding the\n"
    "\tmaximum offset tolerance had to be assumed to allocate offspring.\n")

# --- Non-sexed. Loc1 has sizes 150 152 154 156 158 170, Loc2 has 200 204.
# K1 fits P1 x P2 everywhere. K2 lacks Loc2 and fits P1 x P2 at Loc1. K3 fits P3; of the
# others only P2 (154, two steps from 158) keeps the likelihood above 0, and two steps
# exceed the tolerance of one: P2 is uncollected and P3 moves to the first column.
# K4 is more than two steps from everybody: no pair.
POND_FILES = {
    "loci.txt": "Loc1 Loc2\n",
    "parents.txt": "P1 150152 200204\nP2 150154 204204\nP3 156158 200200\n",
    "offspring.txt": "K1 150154 200204\nK2 152154 000000\nK3 158158 200200\nK4 170170 200200\n",
}
POND_OPTIONS = ["--parents", "parents.txt", "--offspring", "offspring.txt",
                "--loci", "loci.txt"]
BLOCK_HEAD = ("Rejeton     \tParent1\tParent2\t\tCondition\t\tParent -> Rejeton\t\t"
              "Condensé\t/ Dist_unit\tOffset\n\n")
POND_REPORTS = {
    RESULTS:
        "NON-SEXED ALLOCATION RESULTS\n\n"
        "Collected parents file:\t\tparents.txt\n"
        "Offspring file:\t\toffspring.txt\n"
        "Names of loci file: \t\tloci.txt\n\n"
        "Maximal offset tolerance :               1\n\n"
        "Choice of loci :   \t\tLoc1\t(Unit distance = 2    <=>  Di)\n"
        "\t\tLoc2\t(Unit distance = 4    <=>  Tetra)\n\t\t\n"
        "UC :\tParent does not belong to the set of collected parents\n" + LEGEND_ERRORS +
        "Indices :\t[N1,N2] N1, N2 refer to rank of parent in parental file.\n\n\n"
        "OFFSPRING\tPARENT 1\tPARENT 2\tINDICES\t# Errors\n\n"
        "K1\tP1\tP2\t[1,2]\t[0,0]\n"
        "K2\tP1\tP2\t[1,2]\t[0,0]\n"
        "K3\tP3\tUC\t[3,--]\t[0,--]\n"
        "K4\tUC\tUC\t[--,--]\t[--,--]\n"
        "\nSINGLE ALLOCATION PROPORTION\n"
        "Collected :\tproportion of the allocations to a collected parent "
        "(as opposed to uncollected parent)\n"
        "On a single basis the total number of allocations  =  2 X the number of offspring\n"
        "Collected\t0.625\n"
        "\nProportions of allocations classified on a parental pair basis\n"
        "On a pair basis the total number of allocations  =  the number of offspring\n"
        "2 C :\tone collected + one collected\n"
        "C + UC :\tone collected + one uncollected\n"
        "2 UC :\tone uncollected + one uncollected\n"
        "2 C\t0.5\nC + UC\t0.25\n2 UC\t0.25\n",
    MAX_LIKE:
        "Offspring \nK1          \t150154 200204 \n"
        "Parents\nP1          \t150152 200204 \nP2          \t150154 204204 \n" + STARS +
        "Offspring \nK2          \t152154 000000 \n"
        "Parents\nP1          \t150152 200204 \nP2          \t150154 204204 \n" + STARS +
        "Offspring \nK3          \t158158 200200 \n"
        "Parents\nP2          \t150154 204204 \nP3          \t156158 200200 \n" + STARS +
        "Offspring \nK4          \t170170 200200 \nParents\nnone\n" + STARS,
    MATRICES:
        BLOCK_HEAD +
        "150 154\t150 152\t150 154\t\tcond_complet\t\t[[],[]]\t\t[0,0]\t/ 2\t[0,0]\n\n"
        "200 204\t200 204\t204 204\t\tcond_complet\t\t[[],[]]\t\t[0,0]\t/ 4\t[0,0]\n\n"
        "Offsets Parent_1 :\t\t[  0  0  ]\nOffsets Parent_2 :\t\t[  0  0  ]\n"
        "Offset maximum toléré : 1\n"
        "offset_par1_depasse = Non\noffset_par2_depasse = Non\n\n" + BLOCK_HEAD +
        "152 154\t150 152\t150 154\t\tcond_complet\t\t[[],[]]\t\t[0,0]\t/ 2\t[0,0]\n\n"
        "000 000\t200 204\t204 204\t\tcond_aucun\t\t[*,*]\t\t[*,*]\t/ 4\t[*,*]\n\n"
        "Offsets Parent_1 :\t\t[  0  0  ]\nOffsets Parent_2 :\t\t[  0  0  ]\n"
        "Offset maximum toléré : 1\n"
        "offset_par1_depasse = Non\noffset_par2_depasse = Non\n\n" + BLOCK_HEAD +
        "158 158\t150 154\t156 158\t\tcond_RR_par2_seul\t\t[[154,158],[]]\t\t[4,0]\t/ 2\t[2,0]"
        "\n\n"
        "200 200\t204 204\t200 200\t\tcond_RR_par2_seul\t\t[[204,200],[]]\t\t[4,0]\t/ 4\t[1,0]"
        "\n\n"
        "Offsets Parent_1 :\t\t[  2  1  ]\nOffsets Parent_2 :\t\t[  0  0  ]\n"
        "Offset maximum toléré : 1\n"
        "offset_par1_depasse = Oui\noffset_par2_depasse = Non\n\n" + BLOCK_HEAD +
        "170 170\t   *   \t\t   *   \n\n\n200 200\t   *   \t\t   *   \n\n\n"
        "Offsets Parent_1 :\t\t[  0  0  ]\nOffsets Parent_2 :\t\t[  0  0  ]\n"
        "Offset maximum toléré : 1\n"
        "offset_par1_depasse = Non\noffset_par2_depasse = Non\n\n",
    STEPPING: STEPPING_HEAD,
}

# --- Sexed, sequence 3,2,1 with locus Bb not in use: first Cc alone, then Cc and Aa.
# The only couple is M1 x F2 (second group). Aa: 120 124 125, unit 1, out of step.
# Cc: 200 203 206, unit 3. K1 fits. K2 (206) is 1 and 2 steps off, its Aa is missing.
# K3 rejects the male at Cc (200 against 203) and the female at Aa (120 against 124).
# The eight slots are *, M1, F1, *, F2, K1, K2, K3; a missing allele counts on slot 0:
# Aa 12 + 2 + 2 = 16; Cc 9 + 5 + 2 = 16, in the order 203 200 206 of first appearance.
COUPLE_FILES = {
    "loci.txt": "Aa Bb Cc\n",
    "males.txt": "* M1 120124 010010 203203\n",
    "females.txt": "F1 120120 010010 203203\n*\nF2 124125 010012 200200\n",
    "young.txt": "K1 120125 010010 200203\nK2 000000 010010 206206\nK3 120120 010010 200200\n",
}
COUPLE_OPTIONS = ["--males", "males.txt", "--females", "females.txt", "--offspring", "young.txt",
                  "--loci", "loci.txt", "--use", "Cc,Aa", "--sequence", "3,2,1",
                  "--error", "uniform=0.1", "--tolerance", "0"]
COUPLE_HEAD = BLOCK_HEAD.replace("Parent1\tParent2", "Male\tFemale")
COUPLE_REPORTS = {
    RESULTS:
        "SEXED ALLOCATION RESULTS (for the last combination of loci)\n\n"
        "Collected male parents file:\t\t\tmales.txt\n"
        "Collected female parents file:\t\t\tfemales.txt\n"
        "Offspring file:\t\t\tyoung.txt\n"
        "Names of loci file: \t\t\tloci.txt\n\n"
        "Maximal offset tolerance :            0\n\n"
        "Choice of loci: \t\tAa\t(Unit distance = 1 )\n"
        "\t\tCc\t(Unit distance = 3    <=>  Tri)\n\t\t\n"
        "UC : Parent does not belong to the set of collected parents\n" + LEGEND_ERRORS +
        "Indices :\t[N1,N2] N1, N2 refer to rank of male, female parent in parental file.\n\n\n"
        "OFFSPRING\tMALE\tFEMALE\tINDICES\t# Errors\n\n"
        "K1\tM1\tF2\t[2,3]\t[0,0]\n"
        "K2\tUC\tUC\t[--,--]\t[--,--]\n"
        "K3\tUC\tUC\t[--,--]\t[--,--]\n"
        "\nSINGLE ALLOCATION PROPORTIONS\n"
        "Coll Male :\tproportion of the allocations to a male collected parent "
        "(as opposed to male uncollected)\n"
        "Coll Fem  :\tproportion of the allocations to a female collected parent "
        "(as opposed to female uncollected)\n"
        "Coll Male :\t0.333333\nColl Fem  :\t0.333333\n"
        "\nProportions of allocations classified on a parental pair basis\n"
        "CM + CF :\tcollected male + collected female\n"
        "CM + UCF :\tcollected male + uncollected female\n"
        "UCM + CF :\tuncollected male + collected female\n"
        "UCM + UCF :\tuncollected male + uncollected female\n"
        "CM + CF\t0.333333\nCM + UCF\t0\nUCM + CF\t0\nUCM + UCF\t0.666667\n",
    MAX_LIKE: "".join(
        f"Offspring \n{child}\nParents\nM1          \t120124 203203 \n"
        f"F2          \t124125 200200 \n{STARS}" for child in
        ["K1          \t120125 200203 ", "K2          \t000000 206206 ",
         "K3          \t120120 200200 "]),
    MATRICES:
        COUPLE_HEAD +
        "120 125\t120 124\t124 125\t\tcond_complet\t\t[[],[]]\t\t[0,0]\t/ 1\t[0,0]\n\n"
        "200 203\t203 203\t200 200\t\tcond_complet\t\t[[],[]]\t\t[0,0]\t/ 3\t[0,0]\n\n"
        "Offsets Parent_1 :\t\t[  0  0  ]\nOffsets Parent_2 :\t\t[  0  0  ]\n"
        "Offset maximum toléré : 0\n"
        "offset_par1_depasse = Non\noffset_par2_depasse = Non\n\n" + COUPLE_HEAD +
        "000 000\t120 124\t124 125\t\tcond_aucun\t\t[*,*]\t\t[*,*]\t/ 1\t[*,*]\n\n"
        "206 206\t203 203\t200 200\t\tcond_aucun\t\t[[dm=3],[dm=6]]\t\t[3,6]\t/ 3\t[1,2]\n\n"
        "Offsets Parent_1 :\t\t[  0  1  ]\nOffsets Parent_2 :\t\t[  0  2  ]\n"
        "Offset maximum toléré : 0\n"
        "offset_par1_depasse = Oui\noffset_par2_depasse = Oui\n\n" + COUPLE_HEAD +
        "120 120\t120 124\t124 125\t\tcond_RR_par1_seul\t\t[[],[124,120]]\t\t[0,4]\t/ 1\t[0,4]"
        "\n\n"
        "200 200\t203 203\t200 200\t\tcond_RR_par2_seul\t\t[[203,200],[]]\t\t[3,0]\t/ 3\t[1,0]"
        "\n\n"
        "Offsets Parent_1 :\t\t[  0  1  ]\nOffsets Parent_2 :\t\t[  4  0  ]\n"
        "Offset maximum toléré : 0\n"
        "offset_par1_depasse = Oui\noffset_par2_depasse = Oui\n\n",
    STEPPING: STEPPING_HEAD +
        "Locus Aa :\n\tAlleles : 120 124 125 \n\tAllelic distances : 4  1  \n\n",
    SEQUENCE:
        "SEXED ALLOCATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI\n\n"
        "Collected male parents file :\t\tmales.txt\n"
        "Collected female parents file :\t\tfemales.txt\n"
        "Offspring file :\t\tyoung.txt\nName of loci file :\t\tloci.txt\n"
        "Maximal offset tolerance : 0\n\n"
        "Combinations of loci :\n1\t      ==>\tCc\n2\t      ==>\tCc Aa\n\n"
        "SHORT REPORT ON SINGLE ALLOCATION PROPORTIONS\n"
        "Combin #\tColl Male\tColl Fem\tCM + CF\tCM + UCF\tUCM+CF\tUCM+UCF\n"
        "1\t0.333333\t0.666667\t0.333333\t0\t0.333333\t0.333333\n"
        "2\t0.333333\t0.333333\t0.333333\t0\t0\t0.666667\n",
    SERVICE:
        "LIST OF ALLELES FOR EACH LOCUS\n\n"
        "Aa\t120\t124\t125\t\nfrequency\t0.75\t0.125\t0.125\t\nsum total\t1\n\n"
        "Cc\t200\t203\t206\t\nfrequency\t0.5625\t0.3125\t0.125\t\nsum total\t1\n\n",
}

# --- One locus at a time: child, parent 1, parent 2, unit, record.
RECORDS = [
    ((150, 154), (156, 144), (160, 154), 2,
     "cond_RJ_J_par2\t\t[[dm=6,150],[]]\t\t[6,0]\t/ 2\t[3,0]"),
    ((150, 150), (150, 154), (152, 156), 2,
     "cond_RR_par1_seul\t\t[[],[152,150]]\t\t[0,2]\t/ 2\t[0,1]"),
    ((150, 150), (140, 160), (150, 150), 4,
     "cond_RR_par2_seul\t\t[[dm=10,150],[]]\t\t[10,0]\t/ 4\t[2,0]"),
    ((150, 154), (150, 150), (150, 160), 2,
     "cond_un_a_chacun\t\t[['#'],['#']]\t\t[#,#]\t/ 2\t[0,0]"),
    ((150, 154), (150, 150), (159, 159), 4,
     "cond_RJ_R_par1\t\t[[],[159,154]]\t\t[0,5]\t/ 4\t[0,1]"),
    ((150, 154), (151, 160), (150, 158), 4,
     "cond_RJ_R_par2\t\t[[151,154],[]]\t\t[3,0]\t/ 4\t[0,0]"),
    ((150, 154), (154, 160), (148, 152), 2,
     "cond_RJ_J_par1\t\t[[],[dm=2,150]]\t\t[0,2]\t/ 2\t[0,1]"),
    ((150, 154), (156, 140), (160, 154), 2,
     "cond_RJ_J_par2\t\t[[156,150],[]]\t\t[6,0]\t/ 2\t[3,0]"),
    ((150, 154), (154, 150), (149, 160), 2,
     "cond_RJ_RJ_par1\t\t[[],[149,150]]\t\t[0,1]\t/ 2\t[0,0]"),
    ((150, 154), (150, 154), (148, 156), 2,
     "cond_RJ_RJ_par1\t\t[[],[dm=2]]\t\t[0,2]\t/ 2\t[0,1]"),
    ((150, 154), (152, 152), (150, 154), 2,
     "cond_RJ_RJ_par2\t\t[[dm=2],[]]\t\t[2,0]\t/ 2\t[1,0]"),
    ((150, 154), (160, 160), (150, 154), 2,
     "cond_RJ_RJ_par2\t\t[[160,154],[]]\t\t[6,0]\t/ 2\t[3,0]"),
    ((150, 154), (150, 150), (154, 154), 2,
     "cond_complet\t\t[[],[]]\t\t[0,0]\t/ 2\t[0,0]"),
    ((150, 150), (150, 150), (150, 150), -150,
     "cond_complet\t\t[[],[]]\t\t[0,0]\t/ -150\t[0,0]"),
]


def found_by_search(parents, child, female_from=None):
    """Pairs, mark and events for one locus with sizes 1, 3 and 5, unit 2.

    A letter stands for a homozygous parent: a = 1, b = 3, c = 5. A parent is read
    two steps off with 0.002 and one step off with 0.008, so for a child (1, 5) the
    pair a x c scores about 3.84 and b x b 4 x 0.008 x 0.008 x 2.
    """
    sizes = {"a": (1, 1), "b": (3, 3), "c": (5, 5)}
    people = [Individual(name, [sizes[letter]]) for letter, name in parents]
    young = Individual("K", [child])
    catalogue = Catalogue([Individual("s", [(1, 3)]), Individual("s", [(5, 5)])], 0)
    same, one, two = 0.98, 0.008, 0.002
    matrix = [[same, one, two], [one, same, one], [two, one, same]]
    files = [people] if female_from is None else [people[:female_from], people[female_from:]]
    return search_pairs(young, files, [0], {0: catalogue}, {0: matrix}), people, catalogue


def letters(text):
    return [(letter, f"{letter}{number}") for number, letter in enumerate(text)]


def check_search(expect):
    """Ties, the mark for more than five, and duplicates by name."""
    outcome, *_ = found_by_search(letters("acc"), (1, 5))
    expect("two ties", outcome.pairs, [(0, 1), (0, 2)])
    outcome, *_ = found_by_search(letters("accccccc"), (1, 5))
    expect("seven ties", (outcome.pairs, outcome.more_than_five),
           ([(0, k) for k in range(1, 6)], True))
    outcome, *_ = found_by_search(letters("bbbbbbbac"), (1, 5))
    expect("better pair after the mark",
           (outcome.pairs, outcome.more_than_five), ([(7, 8)], True))
    outcome, *_ = found_by_search([("a", "A"), ("c", "0123456789x"), ("c", "0123456789y"),
                                   ("c", "012345678")], (1, 5))
    expect("same ten bytes", outcome.pairs, [(0, 1), (0, 3)])
    outcome, *_ = found_by_search([("c", "C"), ("a", "A"), ("c", "C")], (1, 5))
    expect("duplicate crosswise", outcome.pairs, [(0, 1)])
    outcome, *_ = found_by_search([("b", "X"), ("b", "Y"), ("b", "Y"), ("b", "X")], (3, 3), 2)
    expect("namesakes of both sexes", outcome.pairs, [(0, 2), (0, 3), (1, 2), (1, 3)])
    outcome, *_ = found_by_search(letters("abc"), (0, 0))
    expect("all missing", (outcome.pairs, outcome.best), ([(0, 1), (0, 2), (1, 2)], 1.0))
    outcome, people, catalogue = found_by_search(letters("bb"), (1, 1))
    judge_first_pair(outcome, Individual("K", [(1, 1)]), people, [0], {0: catalogue}, 1)
    expect("offset equal to the tolerance",
           (outcome.uncollected, outcome.errors), ((False, False), (1, 1)))


def check_catalogue(expect):
    """Sizes are sorted, counts stay; units and steps."""
    slots = [Individual("s", [pair]) for pair in [(156, 152), (152, 160), (160, 160)]]
    catalogue = Catalogue(slots, 0)
    expect("sizes", catalogue.listed, [152, 156, 160])
    expect("counts", catalogue.counts[:4], [1.0, 2.0, 3.0, 0.0])
    for sizes, note, fails in [
            ((100, 102), "(Unit distance = 2    <=>  Di)", False),
            ((100, 105, 111), "(Unit distance = 5 )", True),
            ((100, 104, 110), "(Unit distance = 4    <=>  Tetra)", True),
            ((100, 106, 109), "(Unit distance = 3    <=>  Tri)", False),
            ((100, 101), "(Unit distance = 1 )", True),
            ((150,), "(Unit distance = -150 )", False)]:
        catalogue = Catalogue([Individual("s", [(size, 0)]) for size in sizes], 0)
        expect(f"unit of {sizes}", (unit_note(catalogue.unit), is_out_of_step(catalogue)),
               (note, fails))
    expect("single precision", single(0.1) == 0.1, False)


def check(folder):
    """Run all hand-worked cases; returns the number of failures."""
    failures = []

    def expect(what, found, wanted):
        if found != wanted:
            failures.append(what)
            print(f"hand-worked case {what!r}:\n  found  {found!r}\n  wanted {wanted!r}")

    for project, files, options, reports, closing in [
            ("pond", POND_FILES, POND_OPTIONS, POND_REPORTS, COMPLETED),
            ("couple", COUPLE_FILES, COUPLE_OPTIONS, COUPLE_REPORTS, OUT_OF_STEP)]:
        place = folder / project
        place.mkdir(parents=True)
        for name, text in files.items():
            (place / name).write_text(text, encoding="utf-8")
        run = allocate(parse_arguments(["--project", project] + options), place)
        write_reports(run, place)
        written = {path.name: path.read_bytes().decode("utf-8")
                   for path in (place / project).iterdir()}
        expect(f"{project}, files", sorted(written), sorted(reports))
        for name, text in reports.items():
            expect(f"{project}, {name}", written.get(name), text)
        expect(f"{project}, closing sentence", run.closing, closing)
    for child, parent1, parent2, unit, record in RECORDS:
        comparison = compare_locus(child, parent1, parent2, unit)
        expect(f"record of {child} {parent1} {parent2}", comparison.record, record)
    expect("a fresh outcome", Outcome().best, 0.0)
    check_search(expect)
    check_catalogue(expect)
    print(f"hand-worked cases: {len(failures)} failures")
    return len(failures)
