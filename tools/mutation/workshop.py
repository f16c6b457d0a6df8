"""Builds mutants in a copy of the tree and runs the tests on them."""

import hashlib
import json
import os
import resource
import shlex
import shutil
import signal
import subprocess
import sys

# The folders of tests/ whose programs say something about a folder of Orvane/, the quickest first.
TESTS = {
    "app": ["app", "model", "pictures"],
    "base": ["base"],
    "geometry": ["geometry", "guard"],
    "guard": ["guard", "model", "app"],
    "model": ["model", "app"],
    "panels": ["panels", "gallery", "pictures"],
    "permission": ["permission", "model", "pictures"],
    "ui": ["ui", "panels", "pictures"],
    "windows": ["windows", "app"],
}
# Properties try the same cases for every mutant. Without ccache, which would keep every mutant, the
# build precompiles headers.
ENVIRONMENT = {**os.environ, "RC_PARAMS": "seed=20260101 max_success=100", "CCACHE_DISABLE": "1"}
MEMORY_LIMIT = 4 << 30
# A program that waits for ever uses no processor time.
WALL_LIMIT_SECONDS = 3600
# The scenarios try what survives, and then the explorer, in the folders whose behaviour its
# invariants cover. The days have fixed seeds and take about 10 seconds.
EXPLORED = {"app", "geometry", "guard", "model", "permission", "windows"}
DESK = "orvane-desk"
DAYS = 200
EXPLORE_ARGUMENTS = ("explore", "--seed", "1", "--days", str(DAYS))
TEST_ARGUMENTS = ("--gtest_fail_fast", "--gtest_brief=1")
# The fastest linker that is here.
LINKER = ["-fuse-ld=lld"] if shutil.which("ld.lld") else []


def limit_resources(seconds):
    """Limits the memory of this process, and its processor time, which a busy machine does not lengthen."""
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))


def processor_seconds():
    """The processor time that all ended child processes have used."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def passes(program, arguments, seconds):
    """Whether a program succeeds in so much processor time; a hang is a failure."""
    with subprocess.Popen([program, *arguments], stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, cwd=program.parent, env=ENVIRONMENT,
                          start_new_session=True, preexec_fn=lambda: limit_resources(seconds)) as process:
        try:
            return process.wait(timeout=WALL_LIMIT_SECONDS) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return False


class Workshop:
    """A copy of the tree with its build, and the verdicts that are known."""

    def __init__(self, root, work):
        self.tree = work / "tree"
        self.build = work / "build"
        self.copy(root)
        self.verdicts = work / "verdicts" / f"{self.digest()}.txt"
        self.verdicts.parent.mkdir(parents=True, exist_ok=True)
        self.known = {}
        if self.verdicts.exists():
            for line in self.verdicts.read_text(encoding="utf-8").splitlines():
                verdict, mutant = line.split("\t", 1)
                self.known[mutant] = verdict
        self.programs = {}
        # Seconds of processor time for each program.
        self.limits = {}
        # The command that compiles each source into the mutant's object, and the contents of the
        # object without a fault.
        self.objects = {}
        # The command that links each program with the mutant's object.
        self.links = {}
        self.mutant = self.build / "mutant.o"

    def copy(self, root):
        """Brings the copy up to date; files that are equal keep their time, so little is rebuilt."""
        listing = subprocess.run(["git", "-C", root, "ls-files", "-z", "--cached", "--others",
                                  "--exclude-standard"], check=True, capture_output=True, text=True).stdout
        self.files = sorted(name for name in listing.split("\0") if name and (root / name).is_file())
        for name in self.files:
            source, target = root / name, self.tree / name
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, target)
                shutil.copymode(source, target)
        for path in {path for path in self.tree.rglob("*") if path.is_file()} - {
                self.tree / name for name in self.files}:
            path.unlink()

    def digest(self):
        """A name for the contents of all files."""
        digest = hashlib.sha256()
        for name in self.files:
            digest.update(name.encode() + b"\0" + (self.tree / name).read_bytes() + b"\0")
        return digest.hexdigest()[:12]

    def prepare(self, folder):
        """Builds what the mutants of a folder need and measures the tests; ends the program if they fail."""
        if not (self.build / "build.ninja").exists():
            # Without debug information, the same code is the same object.
            subprocess.run(["cmake", "--preset", "desk", "-B", self.build, "-DCMAKE_CXX_FLAGS=-w",
                            "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DORVANE_WARNINGS_AS_ERRORS=OFF"],
                           cwd=self.tree, check=True, stdout=subprocess.DEVNULL, env=ENVIRONMENT)
        subprocess.run(["ninja", "-C", self.build, "--quiet", "build.ninja"], check=True)
        listing = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], check=True,
                                 capture_output=True, text=True).stdout
        executables = sorted(line.split(":")[0] for line in listing.splitlines()
                             if ": CXX_EXECUTABLE_LINKER" in line)
        self.programs[folder] = [name for test in TESTS[folder] for name in executables
                                 if name.startswith(f"tests/{test}/")]
        self.programs[folder].append(DESK)
        subprocess.run(["ninja", "-C", self.build, "--quiet", *self.programs[folder]], check=True,
                       env=ENVIRONMENT)
        for command in json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8")):
            source, words = command["file"], shlex.split(command["command"])
            if source.startswith(f"{self.tree}/Orvane/{folder}/"):
                target = words.index("-o") + 1
                code = (self.build / words[target]).read_bytes()
                self.objects[source] = [*words[:target], str(self.mutant), *words[target + 1:]], code
        for program in self.programs[folder]:
            self.links[program] = self.link_command(program)
            for arguments in self.arguments(folder, program):
                before = processor_seconds()
                if not passes(self.build / program, arguments, WALL_LIMIT_SECONDS):
                    sys.exit(f"{program} {arguments[0]} fails without a fault")
                self.limits[program, arguments] = 5 + int(10 * (processor_seconds() - before))

    def link_command(self, program):
        """The command that links a program as a mutant. The linker prefers the object to the same one
        in the library, which it then does not need."""
        listing = subprocess.run(["ninja", "-C", self.build, "-t", "commands", program], check=True,
                                 capture_output=True, text=True).stdout
        words = shlex.split(listing.splitlines()[-1].removeprefix(": && ").removesuffix(" && :"))
        target = words.index("-o") + 1
        return [*words[:target], f"{program}.mutant", str(self.mutant), *words[target + 1:], *LINKER]

    def arguments(self, folder, program):
        """The arguments of each run of a program."""
        if program != DESK:
            return [TEST_ARGUMENTS]
        scenarios = ("script", *sorted(map(str, self.tree.glob("tests/scenarios/*.desk"))))
        return [scenarios, EXPLORE_ARGUMENTS] if folder in EXPLORED else [scenarios]

    def runs(self, command):
        return subprocess.run(command, cwd=self.build, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, env=ENVIRONMENT, check=False).returncode == 0

    def try_mutant(self, folder, mutant):
        """One of "killed", "explored" (only the explorer kills it), "survived", "same" (the compiler
        makes the same code of it) and "invalid"."""
        if str(mutant) not in self.known:
            verdict = self.verdict(folder, mutant)
            self.known[str(mutant)] = verdict
            with self.verdicts.open("a", encoding="utf-8") as file:
                file.write(f"{verdict}\t{mutant}\n")
        return self.known[str(mutant)]

    def verdict(self, folder, mutant):
        source = self.tree / mutant.file
        compile_command, code = self.objects[str(source)]
        original, status = source.read_text(encoding="utf-8"), source.stat()
        try:
            source.write_text(mutant.applied(original), encoding="utf-8")
            if not self.runs(compile_command):
                return "invalid"
        finally:
            source.write_text(original, encoding="utf-8")
            # With its time, so that the next build has nothing to do.
            os.utime(source, ns=(status.st_atime_ns, status.st_mtime_ns))
        if self.mutant.read_bytes() == code:
            return "same"
        for name in self.programs[folder]:
            # A program that does not need the object may lack what the object needs.
            if not self.runs(self.links[name]):
                continue
            for arguments in self.arguments(folder, name):
                limit = self.limits[name, arguments]
                if not passes(self.build / f"{name}.mutant", arguments, limit):
                    return "explored" if arguments == EXPLORE_ARGUMENTS else "killed"
        return "survived"
