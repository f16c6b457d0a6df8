"""Tests of tools/package-macos: the archive that it makes on Linux, and the order of its steps on a Mac, where
stubs record their calls."""

import os
import pathlib
import plistlib
import stat
import subprocess
import sys
import tempfile
import unittest
import zipfile

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOL = ROOT / "tools" / "package-macos"

# Appends its call to a file, and creates the output that the tool expects.
_RECORDER = """#!/bin/sh
name=${0##*/}
echo "$name $*" >>"$CALLS"
case $name in
  uname) echo "$SYSTEM" ;;
  plutil) echo 2.5.0 ;;
  dsymutil) mkdir "$3" ;;
  ditto) if [ "$1" = -c ]; then for last; do :; done; echo zip >"$last"; else cp -R "$1" "$2"; fi ;;
  hdiutil) for last; do :; done; echo image >"$last"; ls -l "${last%/*}" >/dev/null
    for word; do [ "$previous" = -srcfolder ] && ls -l "$word" >>"$CALLS"; previous=$word; done ;;
esac
[ "$name" != "$FAILING" ] || [ "$(grep -c "^$name " "$CALLS")" -gt "$FAILURES" ]
"""


class PackageFixture(unittest.TestCase):
    """A bundle with the structure of the real one, and a folder for the packages."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.bundle = self.folder / "Orvane.app"
        self.output = self.folder / "out"
        contents = self.bundle / "Contents"
        (contents / "MacOS").mkdir(parents=True)
        (contents / "Resources").mkdir()
        (contents / "Info.plist").write_bytes(plistlib.dumps({"CFBundleShortVersionString": "2.5.0"}))
        (contents / "MacOS" / "Orvane").write_bytes(b"program")
        (contents / "MacOS" / "Orvane").chmod(0o700)
        (contents / "Resources" / "Text.txt").write_text("text", encoding="utf-8")
        (contents / "Resources" / "Text.txt").chmod(0o600)
        (contents / "Resources" / "Link").symlink_to("Text.txt")

    def run_tool(self, *options, path=None, **variables):
        environment = {**os.environ, **variables}
        if path is not None:
            environment["PATH"] = f"{path}:{environment['PATH']}"
        return subprocess.run([str(TOOL), "--bundle", str(self.bundle), "--output", str(self.output), *options],
                              env=environment, capture_output=True, text=True, check=False)


class OnLinux(PackageFixture):
    """The zip of the cross build."""

    def setUp(self):
        super().setUp()
        if os.uname().sysname == "Darwin":
            self.skipTest("a Mac makes its own packages")

    def test_the_archive_keeps_permissions_and_links(self):
        self.assertEqual(self.run_tool().returncode, 0)
        with zipfile.ZipFile(self.output / "Orvane-2.5.0-unsealed.zip") as archive:
            self.assertIsNone(archive.testzip())
            modes = {info.filename: info.external_attr >> 16 for info in archive.infolist()}
            self.assertTrue(all(info.create_system == 3 for info in archive.infolist()))
            self.assertEqual(archive.read("Orvane.app/Contents/Resources/Link"), b"Text.txt")
            self.assertEqual(archive.read("Orvane.app/Contents/MacOS/Orvane"), b"program")
        self.assertEqual(modes, {
            "Orvane.app/": stat.S_IFDIR | 0o755,
            "Orvane.app/Contents/": stat.S_IFDIR | 0o755,
            "Orvane.app/Contents/Info.plist": stat.S_IFREG | 0o644,
            "Orvane.app/Contents/MacOS/": stat.S_IFDIR | 0o755,
            "Orvane.app/Contents/MacOS/Orvane": stat.S_IFREG | 0o755,
            "Orvane.app/Contents/Resources/": stat.S_IFDIR | 0o755,
            "Orvane.app/Contents/Resources/Link": stat.S_IFLNK | 0o755,
            "Orvane.app/Contents/Resources/Text.txt": stat.S_IFREG | 0o644,
        })

    def test_the_same_bundle_gives_the_same_bytes(self):
        self.run_tool()
        archive = self.output / "Orvane-2.5.0-unsealed.zip"
        first = archive.read_bytes()
        os.utime(self.bundle / "Contents" / "MacOS" / "Orvane", (0, 0))
        self.run_tool()
        self.assertEqual(archive.read_bytes(), first)

    def test_it_warns_that_the_bundle_is_not_sealed(self):
        output = self.run_tool().stdout
        self.assertIn("no signature seals the bundle", output)
        self.assertIn("codesign --force --sign -", output)

    def test_what_needs_a_mac_is_refused(self):
        self.assertNotEqual(self.run_tool("--identity", "Somebody").returncode, 0)
        self.assertFalse(list(self.output.glob("*.zip")))

    def test_a_bundle_without_its_program_is_refused(self):
        (self.bundle / "Contents" / "MacOS" / "Orvane").unlink()
        result = self.run_tool()
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("There is no application", result.stderr)

    def test_an_unknown_option_is_refused(self):
        self.assertIn("does not know", self.run_tool("--sign", "x").stderr)
        self.assertIn("wants a value", self.run_tool("--identity").stderr)


class OnAMac(PackageFixture):
    """The order of the programs that it calls."""

    def setUp(self):
        super().setUp()
        self.programs = self.folder / "programs"
        self.programs.mkdir()
        self.calls = self.folder / "calls"
        for name in ("uname", "plutil", "dsymutil", "strip", "ditto", "codesign", "xcrun", "spctl", "hdiutil", "sleep",
                     "shasum"):
            program = self.programs / name
            program.write_text(_RECORDER, encoding="utf-8")
            program.chmod(0o755)

    def calls_of(self, *options, failing="", failures=99):
        """The calls if a program fails this many times."""
        self.calls.unlink(missing_ok=True)
        result = self.run_tool(*options, path=self.programs, CALLS=str(self.calls), SYSTEM="Darwin", FAILING=failing,
                               FAILURES=str(failures))
        lines = self.calls.read_text(encoding="utf-8").splitlines()
        return result, [line for line in lines if not line.startswith(("uname", "plutil", "shasum"))]

    @staticmethod
    def kinds(lines):
        """A name for what each call does."""
        kinds = []
        for line in lines:
            words = line.split()
            if words[0] == "ditto":
                packed = "zip symbols" if line.endswith("dSYM.zip") else "zip"
                kinds.append(packed if words[1] == "-c" else "copy")
            elif words[0] == "codesign":
                kinds.append("verify" if "--verify" in words else "sign")
            elif words[0] == "xcrun":
                kinds.append(words[2])
            elif words[0] == "hdiutil":
                kinds.append("image")
            elif words[0] in ("dsymutil", "strip", "spctl", "sleep"):
                kinds.append(words[0])
        return kinds

    # The first steps for every package.
    SIGNED = ["copy", "dsymutil", "strip", "zip symbols", "sign", "verify", "zip"]

    def test_without_an_identity_the_signature_is_ad_hoc(self):
        result, lines = self.calls_of()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.kinds(lines), [*self.SIGNED, "copy", "image"])
        signing = next(line for line in lines if line.startswith("codesign"))
        self.assertIn("--sign - --timestamp=none --options runtime", signing)
        self.assertNotIn("entitlements", signing)
        self.assertIn("Signed ad hoc", result.stdout)

    def test_with_an_identity_the_image_is_signed_too(self):
        result, lines = self.calls_of("--identity", "Developer ID Application: Somebody (TEAM)")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.kinds(lines), [*self.SIGNED, "copy", "image", "sign"])
        signing = next(line for line in lines if line.startswith("codesign"))
        self.assertIn("--sign Developer ID Application: Somebody (TEAM) --timestamp --options runtime", signing)

    def test_what_is_packed_is_notarised_and_stapled(self):
        result, lines = self.calls_of("--identity", "Somebody", "--notary", "profile")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.kinds(lines),
                         [*self.SIGNED, "submit", "staple", "validate", "spctl", "zip", "copy", "image", "sign",
                          "submit", "staple", "validate", "spctl"])
        listing = "\n".join(lines)
        self.assertIn("--keychain-profile profile --wait", listing)
        self.assertRegex(listing, r"spctl --assess -vv --type execute \S+/Orvane\.app\n")
        self.assertRegex(listing, r"spctl --assess -vv --type open --context context:primary-signature \S+\.dmg\b")

    def test_nothing_is_packed_if_gatekeeper_refuses_it(self):
        result, lines = self.calls_of("--identity", "Somebody", "--notary", "profile", failing="spctl")
        self.assertNotEqual(result.returncode, 0)
        self.assertNotIn("image", self.kinds(lines))

    def test_a_busy_image_is_tried_again_with_a_pause(self):
        result, lines = self.calls_of(failing="hdiutil", failures=2)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.kinds(lines)[-5:], ["image", "sleep", "image", "sleep", "image"])
        result, lines = self.calls_of(failing="hdiutil")
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(self.kinds(lines).count("image"), 5)
        self.assertIn("cannot be made", result.stderr)

    def test_the_symbols_are_kept_separately_from_the_program(self):
        _, lines = self.calls_of()
        self.assertTrue((self.output / "Orvane-2.5.0.dSYM.zip").exists())
        stripped = next(line for line in lines if line.startswith("strip"))
        self.assertRegex(stripped, r"strip -S \S+/Orvane\.app/Contents/MacOS/Orvane$")

    def test_the_image_holds_the_application_and_a_link_to_the_applications_folder(self):
        _, lines = self.calls_of()
        listing = "\n".join(lines)
        self.assertRegex(listing, r"Applications -> /Applications")
        self.assertRegex(listing, r"(?m)^d.* Orvane\.app$")

    def test_only_a_signed_application_can_be_notarised(self):
        result, _ = self.calls_of("--notary", "profile")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("Only an application signed with an identity", result.stderr)

    def test_nothing_is_packed_after_a_failure(self):
        result, lines = self.calls_of("--identity", "Somebody", "--notary", "profile", failing="codesign")
        self.assertNotEqual(result.returncode, 0)
        self.assertNotIn("zip", self.kinds(lines))
        result, lines = self.calls_of("--identity", "Somebody", "--notary", "profile", failing="xcrun")
        self.assertNotEqual(result.returncode, 0)
        self.assertNotIn("image", self.kinds(lines))


if __name__ == "__main__":
    unittest.main()
