"""What came of the mistakes, as texts."""

import mutant as mutants

KILLED, SURVIVED, NO_BUILD, TIMED_OUT, EQUIVALENT = "killed", "survived", "not compiling", "timed out", "equivalent"


def counts(outcomes):
    found = dict.fromkeys((KILLED, TIMED_OUT, SURVIVED, EQUIVALENT, NO_BUILD), 0)
    for _, outcome, _ in outcomes:
        found[outcome] += 1
    return found


def rate(outcomes):
    """Per cent noticed of those that compile and matter."""
    found = counts(outcomes)
    noticed = found[KILLED] + found[TIMED_OUT]
    tried = noticed + found[SURVIVED]
    return 100.0 * noticed / tried if tried else 100.0


def line(folder, outcomes):
    found = ", ".join(f"{count} {what}" for what, count in counts(outcomes).items())
    return f"{folder}: {len(outcomes)} mutants: {found}: {rate(outcomes):.0f} %"


def whole(outcomes, equivalent, seed):
    text = [f"# Mutants of seed {seed}", "",
            "| Folder | Mutants | Killed | Timed out | Survived | Equivalent | Not compiling | Rate |",
            "|---|---|---|---|---|---|---|---|"]
    every = [one for found in outcomes.values() for one in found]
    for folder, found in [*outcomes.items(), ("all", every)]:
        numbers = " | ".join(str(number) for number in counts(found).values())
        text.append(f"| {folder} | {len(found)} | {numbers} | {rate(found):.0f} % |")
    for title, wanted in (("Survivors", SURVIVED), ("Equivalent", EQUIVALENT), ("Killed", KILLED),
                          ("Timed out", TIMED_OUT), ("Not compiling", NO_BUILD)):
        text += ["", f"## {title}"]
        for mutant, outcome, by in every:
            if outcome == wanted:
                why = mutants.reason(equivalent, mutant) if wanted == EQUIVALENT else by
                text += ["", f"{mutant.path}:{mutant.line}: {mutant.kind}" + (f" ({why})" if why else ""), "```diff",
                         mutant.difference(), "```"]
    return "\n".join(text) + "\n"
