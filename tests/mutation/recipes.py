# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Makes a mutant beside the build: only the objects that differ, and what is linked from them, in a folder of its own.
Nothing of the build itself changes, so that mutants can be made and tested at the same time."""

import hashlib
import json
import pathlib
import shlex
import subprocess

LIBRARIES = ("ornevo_app", "ornevo_canvas", "ornevo_core", "ornevo_cutout", "ornevo_imaging", "ornevo_segmentation")


def digest(path):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()


class Recipes:
    """The commands by which the build compiles and links, and what was read for each object."""

    def __init__(self, tree, build):
        self.tree, self.build = tree, build
        self.sources, self.compilation = {}, {}  # by object
        for entry in json.loads((build / "compile_commands.json").read_text()):
            command = shlex.split(entry["command"])
            made = command[command.index("-o") + 1]
            self.sources[made], self.compilation[made] = entry["file"], command
        self.linking, self.archives = {}, {}  # by what is linked: the command; by archive: its objects
        for line in self._ninja("-t", "commands").splitlines():
            for command in line.split(" && "):
                self._note(command)
        self.users = {}  # by file of the tree: the objects that read it
        for line in self._ninja("-t", "deps").splitlines():
            if line.startswith(" "):
                path = (build / line.strip()).resolve()
                if path.is_relative_to(tree) and made in self.compilation and not self._generated(made):
                    self.users.setdefault(str(path.relative_to(tree)), []).append(made)
            else:
                made = line.split(":")[0]

    def _generated(self, made):
        """Meta-objects: they run nothing that can be mutated, and read their headers by relative paths."""
        return pathlib.Path(self.sources[made]).is_relative_to(self.build)

    def _ninja(self, *arguments):
        return subprocess.run(["ninja", *arguments], cwd=self.build, check=True, stdout=subprocess.PIPE, text=True).stdout

    def _note(self, command):
        if " qc " in command:  # ar
            words = shlex.split(command)
            self.archives[words[2]] = words[3:]
        elif " -o " in command and " -c " not in command and ".o " in command:
            words = shlex.split(command)
            self.linking[words[words.index("-o") + 1]] = words

    def objects(self, linked):
        """What is linked into it, by itself or out of an archive."""
        for word in self.linking[linked]:
            if word in self.compilation:
                yield word
            for member in self.archives.get(word, ()):
                yield member

    def libraries(self):
        return [linked for linked in self.linking if pathlib.Path(linked).stem.removeprefix("lib") in LIBRARIES]

    def product(self):
        """All that has code of the product in it: libraries, the program, tests of what a library hides."""
        objects = {word for library in self.libraries() for word in self.linking[library] if word in self.compilation}
        return [linked for linked, words in self.linking.items()
                if pathlib.Path(linked).name == "ornevo" or not objects.isdisjoint(words)]


class Mutant:
    def __init__(self, recipes, mutation, folder):
        self.recipes, self.folder = recipes, folder
        self.library_path = str(folder)
        self.users = recipes.users.get(mutation.file, [])
        self.made = {}  # by object of the build: the mutant's
        self.linked = {}
        changed = folder / "tree" / mutation.file
        changed.parent.mkdir(parents=True)
        changed.write_text(mutation.apply((recipes.tree / mutation.file).read_text()))

    def _compile(self, made):
        """Whether it compiles. The changed file comes before the tree's on every search for includes."""
        if made in self.made:
            return True
        source = pathlib.Path(self.recipes.sources[made])
        changed = self.folder / "tree" / source.relative_to(self.recipes.tree)
        beside = str(self.folder / f"{len(self.made)}.o")
        command = list(self.recipes.compilation[made])
        command[command.index("-o") + 1] = beside
        command[command.index(str(source))] = str(changed if changed.exists() else source)
        command.insert(1, f"-I{self.folder / 'tree'}")
        done = subprocess.run(command, cwd=self.recipes.build, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if done.returncode == 0:
            self.made[made] = beside
        return done.returncode == 0

    def _link(self, linked):
        """The mutant's own, or None where it is the same."""
        if linked not in self.linked:
            changed = [made for made in self.recipes.objects(linked) if made in self.users]
            for made in changed:
                if not self._compile(made):
                    raise CompileError
            self.linked[linked] = self._linked_anew(linked, changed) if changed else None
        return self.linked[linked]

    def _linked_anew(self, linked, changed):
        there = str(self.folder / pathlib.Path(linked).name)
        command = [self.made.get(word, word) for word in self.recipes.linking[linked]]
        command[command.index("-o") + 1] = there
        first = command.index(there) + 1  # before the archives, out of which the same is then not taken
        command[first:first] = [self.made[made] for made in changed if self.made[made] not in command]
        subprocess.run(command, cwd=self.recipes.build, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return there

    def libraries(self):
        """Makes the product's libraries; False when the mutation doesn't compile."""
        try:
            for library in self.recipes.libraries():
                self._link(library)
        except (CompileError, subprocess.CalledProcessError):
            return False
        return True

    def differs(self):
        """Whether any machine code does: the libraries', or else that of who reads a header."""
        same = lambda made: digest(self.made[made]) == digest(self.recipes.build / made)
        if not all(same(made) for made in self.made):
            return True
        return any(not self._compile(made) or not same(made) for made in self.users if made not in self.made)

    def program(self, path):
        """The mutant's version of a program of the build."""
        linked = str(pathlib.Path(path).relative_to(self.recipes.build))
        return linked in self.recipes.linking and self._link(linked) or path


class CompileError(Exception):
    pass
