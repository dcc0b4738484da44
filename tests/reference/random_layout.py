"""How a random set looks on disk and on the command line: names, groups, line ends."""

SEPARATORS = ["*", "**", "*pond", "*2"]


def name_giver(rng, style=None):
    """A function that gives a new name at each call, in one style per set."""
    style = style or rng.choice(["short", "short", "long", "accents"])
    counter = [0]

    def give():
        counter[0] += 1
        number = counter[0]
        if style == "short":
            return f"P{number}"
        if style == "accents":
            return f"Né{number}" if number % 2 else f"Étang-nord{number}"
        kind = rng.randrange(3)
        if kind == 0:
            return f"Broodstock{number:05d}"     # 15 bytes, the first ten shared
        return f"Twelve-bytes{number}"[-12:] if kind == 1 else f"L{number}"

    return give


def separated(rng, draft):
    """Both lists of parents with separators put in.

    Both files get the same number of separators, not the same places. A None marks
    a place where a shape wants one.
    """
    lists = [draft.first, draft.second] if draft.sexed else [draft.first]
    lists = [[rng.choice(SEPARATORS) if one is None else one for one in each] for each in lists]
    if draft.groupable and rng.random() < 0.65:
        count = rng.choice([1, 1, 2, 3])
        for each in lists:
            for _ in range(count):
                place = rng.choice([0, len(each), rng.randint(0, len(each)),
                                    rng.randint(0, len(each))])
                each[place:place] = [rng.choice(SEPARATORS)]
    elif rng.random() < 0.4:
        leading, trailing = rng.randint(0, 2), rng.randint(0, 2)
        lists = [[rng.choice(SEPARATORS) for _ in range(leading)] + each +
                 [rng.choice(SEPARATORS) for _ in range(trailing)] for each in lists]
    return lists[0], lists[1] if draft.sexed else []


def render(rng, records):
    """Bytes of a file; line breaks, tabs and blanks all mean the same."""
    style = rng.choice(["lines", "lines", "spread", "one line"])
    line_end = rng.choice(["\n", "\n", "\r\n"])
    blanks = rng.choice([" ", "\t", "   ", " \t "])
    text = rng.choice(["", "", line_end, blanks])
    for position, words in enumerate(records):
        last = position == len(records) - 1
        if style == "spread":
            text += "".join(word + rng.choice([blanks, line_end]) for word in words[:-1])
            text += words[-1]
        else:
            text += blanks.join(words)
        between = blanks if style == "one line" else line_end
        text += rng.choice([between, between, between + line_end])
        if last and rng.random() < 0.4:
            text = text.rstrip()
    data = text.encode("utf-8")
    return b"\xef\xbb\xbf" + data if rng.random() < 0.25 else data


def option(rng, name, value):
    """An option with its value, in one or in two arguments."""
    if value.startswith("-") or rng.random() < 0.3:
        return [f"{name}={value}"]
    return [name, value]


def write_options(rng, options):
    """All options in random order, as one list of arguments."""
    rng.shuffle(options)
    return [argument for each in options for argument in each]
