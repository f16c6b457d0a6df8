"""Tests of the finished application: its imports, its size and the contents of its bundle. Also tests that
these checks can fail. Usage: BundleTest.py BUNDLE INFO_PLIST [CASE...]. Exits with 77, which means skipped,
if no application has been built."""

import os
import pathlib
import re
import stat
import struct
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

import IconTest  # noqa: E402
import mach_o  # noqa: E402
import property_lists  # noqa: E402
import source_rules  # noqa: E402

BUNDLE, INFO = None, None
SKIPPED = 77
MAXIMUM_BYTES_PER_PROCESSOR = 2_000_000
MAXIMUM_BYTES_IN_BUNDLE = 5_000_000
FRAMEWORKS = {"AppKit", "ApplicationServices", "ColorSync", "CoreFoundation", "CoreGraphics", "CoreText", "Foundation",
              "QuartzCore", "ServiceManagement"}
LIBRARIES = {"/usr/lib/libobjc.A.dylib", "/usr/lib/libc++.1.dylib", "/usr/lib/libSystem.B.dylib"}
RUNTIME = pathlib.Path(__file__).with_name("allowed_runtime.txt")


def runtime_names():
    """A regular expression for all allowed imports from the language's libraries."""
    lines = [line for line in RUNTIME.read_text(encoding="utf-8").splitlines() if line and line[0] != "#"]
    return re.compile("(?:" + "|".join(f"(?:{line})" for line in lines) + r")\Z")


def import_findings(program):
    """The disallowed imports of a program for one processor."""
    allowed, runtime = source_rules.allowed_names(), runtime_names()
    findings = []
    for name, library in program.imports:
        plain = re.sub(r"^OBJC_(?:META)?CLASS_\$_", "", name)
        if plain not in allowed and not runtime.match(name):
            findings.append(f"{program.cpu}: {name} from {library or 'anywhere'}")
    for library in program.libraries:
        framework = re.match(r"/System/Library/Frameworks/(\w+)\.framework/", library)
        if library not in LIBRARIES and not (framework and framework[1] in FRAMEWORKS):
            findings.append(f"{program.cpu}: the library {library}")
    for selector in program.selectors:
        if any(source_rules.FORBIDDEN_MESSAGES.match(part) for part in selector.split(":")):
            findings.append(f"{program.cpu}: the message {selector}")
    return findings


def files_in(folder):
    """All files below a folder, by relative path."""
    return {path.relative_to(folder).as_posix(): path for path in sorted(folder.rglob("*"))
            if path.is_symlink() or not path.is_dir()}


def reason_to_skip(program, sources):
    """Empty if the program was built after the last change of its sources."""
    if not program.is_file():
        return "no application for a Mac has been built"
    if program.stat().st_mtime < max(file.absolute.stat().st_mtime for file in sources):
        return "the application for a Mac is older than its sources"
    return ""


class TheProgram(unittest.TestCase):
    """The code in the bundle."""

    @classmethod
    def setUpClass(cls):
        cls.data = (BUNDLE / "Contents" / "MacOS" / "Orvane").read_bytes()
        cls.slices = mach_o.read(cls.data)

    def test_it_has_its_processors_and_the_oldest_system(self):
        processors = os.environ.get("ORVANE_PROCESSORS", "arm64 x86_64").split()
        self.assertEqual(sorted(program.cpu for program in self.slices), sorted(processors))
        info = property_lists.read((BUNDLE / "Contents" / "Info.plist").read_bytes())
        for program in self.slices:
            self.assertEqual(program.minimum_system, info["LSMinimumSystemVersion"])

    def test_it_has_only_allowed_imports(self):
        for program in self.slices:
            self.assertIn("CGEventTapCreate", dict(program.imports))
            self.assertIn("mouseLocation", program.selectors)
            self.assertEqual(import_findings(program), [])

    def test_the_processor_that_requires_a_signature_has_one(self):
        for program in self.slices:
            self.assertTrue(program.has_signature or program.cpu != "arm64")
            self.assertEqual(program.signature_holds, program.has_signature, program.cpu)

    def test_a_signature_of_a_changed_program_does_not_hold(self):
        program = next(program for program in self.slices if program.has_signature)
        start = self.data.index(struct.pack("<II", 0xFEEDFACF, mach_o.CPU_NUMBERS[program.cpu]))
        changed = bytearray(self.data[start:start + program.size])
        changed[len(changed) // 3] ^= 1
        self.assertFalse(mach_o.read(bytes(changed))[0].signature_holds)

    def test_it_stays_within_its_size(self):
        for program in self.slices:
            self.assertLess(program.size, MAXIMUM_BYTES_PER_PROCESSOR, program.cpu)

    def test_it_names_no_folder_of_the_build_machine(self):
        self.assertEqual(re.findall(rb"/(?:home|Users|root|work|tmp|private)/[\w./+-]+", self.data)[:5], [])


class TheBundle(unittest.TestCase):
    """The other files in the bundle."""

    def test_it_holds_exactly_these_files(self):
        images = (source_rules.ROOT / "Orvane" / "resources" / "Images.cmake").read_text(encoding="utf-8")
        names = re.findall(r"^  ([\w-]+)\)?$", images, re.MULTILINE)
        expected = {"Contents/Info.plist", "Contents/PkgInfo", "Contents/MacOS/Orvane",
                    "Contents/Resources/AppIcon.icns", "Contents/Resources/en.lproj/InfoPlist.strings",
                    "Contents/Resources/zh-Hans.lproj/InfoPlist.strings"}
        expected |= {f"Contents/Resources/{name}{scale}.png" for name in names if name != "AppIcon"
                     for scale in ("", "@2x")}
        sealed = {"Contents/_CodeSignature/CodeResources", "Contents/CodeResources"}
        self.assertEqual(set(files_in(BUNDLE)) - sealed, expected)

    def test_its_property_list_is_the_one_that_was_checked(self):
        self.assertEqual(property_lists.read((BUNDLE / "Contents" / "Info.plist").read_bytes()),
                         property_lists.read(pathlib.Path(INFO).read_bytes()))

    def test_only_the_program_can_be_run(self):
        for name, path in files_in(BUNDLE).items():
            mode = os.lstat(path).st_mode
            self.assertTrue(stat.S_ISREG(mode), name)
            self.assertTrue(mode & stat.S_IRUSR, name)
            self.assertEqual(bool(mode & stat.S_IXUSR), name == "Contents/MacOS/Orvane", name)

    def test_the_icon_has_every_size(self):
        kinds = set(IconTest.pictures((BUNDLE / "Contents" / "Resources" / "AppIcon.icns").read_bytes()))
        small = {"icp4", "ic04", "icp5", "ic05"}
        self.assertTrue(kinds & small)
        # 128, 256, 512 and 1024 pixels, and the @2x sizes.
        self.assertLessEqual({"ic07", "ic08", "ic09", "ic10", "ic13", "ic14"}, kinds)

    def test_it_stays_within_its_size(self):
        self.assertLess(sum(path.stat().st_size for path in files_in(BUNDLE).values()), MAXIMUM_BYTES_IN_BUNDLE)


class TheChecks(unittest.TestCase):
    """Tests that the checks can fail."""

    def program(self, **changes):
        values = {"cpu": "arm64", "size": 1, "libraries": [], "imports": [], "selectors": [], "minimum_system": "13.0",
                  "has_signature": True, "signature_holds": True}
        return mach_o.Slice(**{**values, **changes})

    def test_a_program_that_is_older_than_its_sources_is_not_checked(self):
        with tempfile.TemporaryDirectory() as folder:
            program = pathlib.Path(folder, "program")
            source = source_rules.SourceFile(folder, "Source.cpp")
            source.absolute.write_text("", encoding="utf-8")
            self.assertIn("no application", reason_to_skip(program, [source]))
            program.write_bytes(b"")
            os.utime(source.absolute, (1000, 1000))
            os.utime(program, (1001, 1001))
            self.assertEqual(reason_to_skip(program, [source]), "")
            os.utime(program, (999, 999))
            self.assertIn("older", reason_to_skip(program, [source]))

    def test_an_import_that_is_not_allowed_is_found(self):
        for name in ("socket", "fopen", "connect", "OBJC_CLASS_$_NSURLSession", "OBJC_CLASS_$_NSFileManager",
                     "CGWindowListCreateImage", "CGEventTapCreateForPid", "IOHIDManagerCreate", "dlopen", "system",
                     "_ZNSt3__113basic_filebufIcNS_11char_traitsIcEEEC1Ev", "pthread_create", "SecItemAdd",
                     "_ZNSt3__14__fs10filesystem8__statusERKNS1_4pathEPNS_10error_codeE", "posix_spawn", "memcpyx"):
            self.assertEqual(len(import_findings(self.program(imports=[(name, None)]))), 1, name)
        for name in ("memcpy", "OBJC_CLASS_$_NSView", "objc_retain_x20", "_ZTISt9exception",
                     "_ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEE6appendEmc"):
            self.assertEqual(import_findings(self.program(imports=[(name, None)])), [], name)

    def test_a_library_that_is_not_allowed_is_found(self):
        for library in ("/System/Library/Frameworks/Network.framework/Versions/A/Network", "/usr/lib/libcurl.4.dylib",
                        "/System/Library/Frameworks/ScreenCaptureKit.framework/Versions/A/ScreenCaptureKit",
                        "/System/Library/PrivateFrameworks/SkyLight.framework/Versions/A/SkyLight",
                        "@rpath/AppKit.framework/Versions/A/AppKit"):
            self.assertEqual(len(import_findings(self.program(libraries=[library]))), 1, library)

    def test_a_message_that_is_not_allowed_is_found(self):
        for selector in ("writeToFile:atomically:", "addGlobalMonitorForEventsMatchingMask:handler:",
                         "dataTaskWithURL:", "initWithContentsOfFile:", "generalPasteboard"):
            self.assertEqual(len(import_findings(self.program(selectors=[selector]))), 1, selector)

    def test_a_file_that_is_not_a_program_is_refused(self):
        for data in (b"", b"\xca\xfe\xba\xbe", b"MZ" * 40, struct.pack("<8I", 0xFEEDFACF, 0x0100000C, 0, 2, 1, 8, 0, 0),
                     struct.pack(">7I", 0xCAFEBABE, 1, 0, 0, 4096, 99, 12)):
            with self.assertRaises(mach_o.MachOError):
                mach_o.read(data)

    def test_an_import_is_read_with_its_library(self):
        path = b"/usr/lib/libx.dylib\0\0\0\0\0"
        dylib = struct.pack("<6I", 0xC, 24 + len(path), 24, 0, 0, 0) + path
        strings = b"\0_socket\0_main\0"
        table = 32 + len(dylib) + 24
        symtab = struct.pack("<6I", 0x2, 24, table, 2, table + 32, len(strings))
        symbols = struct.pack("<IBBHQ", 1, 1, 0, 0x100, 0) + struct.pack("<IBBHQ", 9, 0xF, 1, 0, 16)
        header = struct.pack("<8I", 0xFEEDFACF, 0x01000007, 3, 2, 2, len(dylib) + 24, 0, 0)
        program = mach_o.read(header + dylib + symtab + symbols + strings)[0]
        self.assertEqual(program.imports, [("socket", "/usr/lib/libx.dylib")])
        self.assertEqual(program.cpu, "x86_64")


if __name__ == "__main__":
    BUNDLE, INFO = pathlib.Path(sys.argv[1]), sys.argv[2]
    cases = sys.argv[3:] or ["TheProgram", "TheBundle"]
    MISSING = reason_to_skip(BUNDLE / "Contents" / "MacOS" / "Orvane", source_rules.sources())
    if cases != ["TheChecks"] and MISSING:
        print(f"Skipped: {MISSING}. ORVANE_MACOS_SDK=FOLDER ./test builds it with a macOS SDK; on a Mac, ./test does.")
        sys.exit(SKIPPED)
    unittest.main(argv=[sys.argv[0], *cases])
