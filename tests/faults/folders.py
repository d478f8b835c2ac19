"""What a folder holds before and after a save, and what a save may leave in it."""

import re
from pathlib import Path

# When a PDF file was made: it is the only moment that isn't laid down.
MADE = re.compile(rb"D:\d{14}")


def content_of(file):
    return MADE.sub(b"", file.read_bytes())


def files_below(folder):
    """Each plain file with its content. Links lead to what is shared and are passed over."""
    found = {}
    for entry in sorted(Path(folder).iterdir()):
        if entry.is_symlink():
            continue
        if entry.is_dir():
            found.update({f"{entry.name}/{name}": content for name, content in files_below(entry).items()})
        else:
            found[entry.name] = content_of(entry)
    return found


class Places:
    """The files that a save makes or takes, below one folder, as they are before it and after one that succeeds."""

    def __init__(self, folder, old):
        self.folder = Path(folder)
        self.old = {}
        self.raw = old
        self.new, self.changed = None, []
        self.reset()
        self.old = files_below(self.folder)

    def reset(self):
        """Puts every file back to what it was before the save."""
        for name in files_below(self.folder):
            (self.folder / name).unlink()
        for name, content in self.raw.items():
            (self.folder / name).parent.mkdir(exist_ok=True)
            (self.folder / name).write_bytes(content)

    def remember(self):
        """What stands there now is what a save without a fault leaves. Gives the names of its files."""
        self.new = files_below(self.folder)
        self.changed = sorted(name for name in {*self.old, *self.new} if self.old.get(name) != self.new.get(name))
        return self.changed

    def left(self):
        """The files that are neither of before nor of after: what waits to be put in place."""
        return sorted(set(files_below(self.folder)) - set(self.old) - set(self.new))

    def is_new(self, only=None):
        """Whether every file of the save, or each of these, is the new one."""
        now = files_below(self.folder)
        return all(now.get(name) == self.new.get(name) for name in only or self.changed)

    def complaint(self, together=True):
        """What is wrong in the folder; empty when all of it is old or new and whole. With `together` the files of one
        save are all old or all new."""
        now = files_below(self.folder)
        for name in {*self.old, *self.new}:
            if now.get(name) not in (self.old.get(name), self.new.get(name)):
                return f"{name} is neither the old file nor the new one"
        if together and len({now.get(name) == self.new.get(name) for name in self.changed}) > 1:
            return "one file is new and the other old"
        for name in self.left():
            if not name.rpartition("/")[2].startswith("."):
                return f"{name} is left"
        # One a target, and of two targets the first under a second name.
        if len(self.left()) > len(self.changed) + (len(self.changed) > 1):
            return f"{self.left()} are left"
        return ""
