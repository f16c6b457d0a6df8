"""The project's rules, by name. A rule takes a Project and yields (file, line, text)."""

from . import arrows, comments, conditions, formatting, listing, names, patterns, size, unused

rules = {
    "arrows": arrows.check,
    "platform-conditions": conditions.check,
    "wall-clock": patterns.wall_clock,
    "chance": patterns.chance,
    "order": patterns.order,
    "names": names.check,
    "listing": listing.check,
    "opening-comment": comments.check,
    "formatting": formatting.check,
    "size": size.check,
    "unused": unused.check,
    "unfinished": patterns.unfinished,
    "addresses": patterns.addresses,
}
