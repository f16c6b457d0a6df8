"""Tests of the metadata that the system reads: Info.plist, its translations and the profile for fleets.
Usage: PropertyListTest.py INFO_PLIST IDENTIFIER VERSION OLDEST_SYSTEM, where INFO_PLIST is the generated file."""

import pathlib
import re
import sys
import unittest

sys.dont_write_bytecode = True

import property_lists  # noqa: E402
from property_lists import StrictError  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parents[2]
MACOS = ROOT / "macos"
INFO, IDENTIFIER, VERSION, OLDEST = (None, None, None, None)
COPYRIGHT = "Copyright © 2026 The Orvane authors"


class InfoPlist(unittest.TestCase):
    """The application's complete property list: an additional key is an error, too."""

    def test_it_has_exactly_these_keys(self):
        expected = {
            "CFBundleDevelopmentRegion": "en", "CFBundleDisplayName": "Orvane", "CFBundleExecutable": "Orvane",
            "CFBundleIconFile": "AppIcon", "CFBundleIdentifier": IDENTIFIER, "CFBundleInfoDictionaryVersion": "6.0",
            "CFBundleLocalizations": ["en", "zh-Hans"], "CFBundleName": "Orvane", "CFBundlePackageType": "APPL",
            "CFBundleShortVersionString": VERSION, "CFBundleSupportedPlatforms": ["MacOSX"],
            "CFBundleVersion": VERSION, "LSApplicationCategoryType": "public.app-category.utilities",
            "LSMinimumSystemVersion": OLDEST, "LSUIElement": True, "NSHighResolutionCapable": True,
            "NSHumanReadableCopyright": COPYRIGHT, "NSPrincipalClass": "NSApplication",
            "NSSupportsAutomaticTermination": False, "NSSupportsSuddenTermination": False,
        }
        self.assertEqual(property_lists.read(pathlib.Path(INFO).read_bytes()), expected)

    def test_it_requests_no_protected_resources(self):
        text = pathlib.Path(INFO).read_text(encoding="utf-8")
        self.assertNotRegex(text, r"UsageDescription|NSAppleEvents|NSAppTransportSecurity|CFBundleURLTypes")

    def test_every_language_has_its_own_texts(self):
        info = property_lists.read(pathlib.Path(INFO).read_bytes())
        folders = sorted(path.name for path in MACOS.glob("*.lproj"))
        self.assertEqual(folders, [f"{language}.lproj" for language in info["CFBundleLocalizations"]])
        for folder in folders:
            texts = property_lists.read_strings((MACOS / folder / "InfoPlist.strings").read_bytes())
            self.assertEqual(set(texts), {"CFBundleDisplayName", "CFBundleName", "NSHumanReadableCopyright"})
            self.assertTrue(all(texts.values()))
            self.assertIn("Orvane", texts["CFBundleName"])
        english = property_lists.read_strings((MACOS / "en.lproj" / "InfoPlist.strings").read_bytes())
        self.assertEqual(english["NSHumanReadableCopyright"], COPYRIGHT)

    def test_the_package_information_says_application(self):
        self.assertEqual((MACOS / "PkgInfo").read_bytes(), b"APPL????")

    def test_there_are_no_entitlements(self):
        self.assertEqual([str(path) for path in MACOS.rglob("*.entitlements")], [])

    def test_all_builds_begin_with_the_same_system(self):
        presets = (ROOT / "CMakePresets.json").read_text(encoding="utf-8")
        toolchain = (ROOT / "cmake" / "macos-cross.cmake").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r'"CMAKE_OSX_DEPLOYMENT_TARGET": "([\d.]+)"', presets), [OLDEST])
        self.assertEqual(re.findall(r"CMAKE_OSX_DEPLOYMENT_TARGET ([\d.]+) CACHE", toolchain), [OLDEST])


class FleetProfile(unittest.TestCase):
    """The sample configuration profile."""

    def setUp(self):
        self.profile = property_lists.read((MACOS / "fleet" / "orvane.mobileconfig").read_bytes())

    def payload(self, kind):
        found = [payload for payload in self.profile["PayloadContent"] if payload["PayloadType"] == kind]
        self.assertEqual(len(found), 1, kind)
        return found[0]

    def test_it_is_a_profile_for_the_whole_computer(self):
        self.assertEqual(self.profile["PayloadType"], "Configuration")
        self.assertEqual(self.profile["PayloadScope"], "System")
        payloads = [self.profile, *self.profile["PayloadContent"]]
        self.assertEqual(len(payloads), 3)
        for payload in payloads:
            self.assertEqual(payload["PayloadVersion"], 1)
            self.assertTrue(property_lists.is_uuid(payload["PayloadUUID"]), payload["PayloadUUID"])
            self.assertTrue(payload["PayloadIdentifier"].startswith(IDENTIFIER))
        self.assertEqual(len({payload["PayloadUUID"] for payload in payloads}), 3)
        self.assertEqual(len({payload["PayloadIdentifier"] for payload in payloads}), 3)

    def test_it_grants_accessibility_and_nothing_else_to_the_signed_application(self):
        services = self.payload("com.apple.TCC.configuration-profile-policy")["Services"]
        self.assertEqual(list(services), ["Accessibility"])
        self.assertEqual(len(services["Accessibility"]), 1)
        entry = services["Accessibility"][0]
        self.assertEqual(entry["Identifier"], IDENTIFIER)
        self.assertEqual(entry["IdentifierType"], "bundleID")
        self.assertEqual(entry["Authorization"], "Allow")
        self.assertNotIn("Allowed", entry, "Authorization replaces it")
        self.assertIs(entry["StaticCode"], False)
        self.assertEqual(entry["CodeRequirement"],
                         f'identifier "{IDENTIFIER}" and anchor apple generic and '
                         # The certificate authority of Developer ID, and its application
                         # certificates.
                         'certificate 1[field.1.2.840.113635.100.6.2.6] /* exists */ and '
                         'certificate leaf[field.1.2.840.113635.100.6.1.13] /* exists */ and '
                         'certificate leaf[subject.OU] = "TEAM000000"')

    def test_it_lets_the_application_open_at_login(self):
        rules = self.payload("com.apple.servicemanagement")["Rules"]
        self.assertEqual([(rule["RuleType"], rule["RuleValue"]) for rule in rules],
                         [("BundleIdentifier", IDENTIFIER)])
        self.assertEqual(rules[0]["TeamIdentifier"], "TEAM000000")


class HomebrewCask(unittest.TestCase):
    """The cask's values match those of the application."""

    def setUp(self):
        self.cask = (MACOS / "homebrew" / "orvane.rb").read_text(encoding="utf-8")

    def test_it_agrees_with_the_application(self):
        self.assertIn(f'  version "{VERSION}"\n', self.cask)
        self.assertIn(f'quit:       "{IDENTIFIER}"', self.cask)
        self.assertIn(f"/Library/Preferences/{IDENTIFIER}.plist", self.cask)
        self.assertIn(f"tccutil reset Accessibility {IDENTIFIER}", self.cask)
        self.assertIn('depends_on macos: ">= :ventura"\n', self.cask)
        self.assertEqual(OLDEST, "13.0", "which is Ventura")

    def test_only_an_uninstallation_removes_the_login_item(self):
        uninstall = re.search(r"^  uninstall (.*?)\n\n", self.cask, re.MULTILINE | re.DOTALL)[1]
        directives = dict(re.findall(r'(\w+):\s+"([^"]+)"', uninstall))
        self.assertEqual(directives, {"quit": IDENTIFIER, "login_item": "Orvane"})
        # These stanzas would run at every upgrade.
        self.assertNotRegex(self.cask, r"early_script:|script:|uninstall_preflight|uninstall_postflight")

    def test_its_placeholders_cannot_be_taken_for_a_release(self):
        self.assertEqual(len(re.findall(r'sha256 "[0-9a-f]{64}"', self.cask)), 1)
        self.assertTrue(re.search(r'sha256 "0{64}"', self.cask)
                        or not re.search(r"https://[\w.]+\.example", self.cask))


class TheReader(unittest.TestCase):
    """Tests that the reader rejects malformed files."""

    HEAD = ('<?xml version="1.0" encoding="UTF-8"?>\n<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" '
            '"http://www.apple.com/DTDs/PropertyList-1.0.dtd">\n')

    def read(self, body, head=HEAD):
        return property_lists.read((head + body).encode("utf-8"))

    def test_a_good_list_is_read(self):
        good = '<plist version="1.0"><dict><key>a</key><array><true/><string>ü</string></array></dict></plist>'
        self.assertEqual(self.read(good), {"a": [True, "ü"]})

    def test_a_bad_list_is_refused(self):
        for body in ('<plist version="1.0"><dict><key>a</key></dict></plist>',
                     '<plist version="1.0"><dict><key>a</key><true/><key>a</key><false/></dict></plist>',
                     '<plist version="1.0"><dict><true/><key>a</key></dict></plist>',
                     '<plist version="1.0"><dict>text<key>a</key><true/></dict></plist>',
                     '<plist version="1.0"><bool/></plist>', '<plist version="1.0"><true>yes</true></plist>',
                     '<plist version="1.0"><string>${VERSION}</string></plist>',
                     '<plist version="1.0"><integer>one</integer></plist>',
                     '<plist version="2.0"><true/></plist>', '<plist version="1.0"><true/><true/></plist>',
                     '<plist version="1.0"><dict></plist>', "<dict/>"):
            with self.assertRaises(StrictError, msg=body):
                self.read(body)
        with self.assertRaises(StrictError):
            self.read('<plist version="1.0"><true/></plist>', head="")

    def test_a_bad_strings_file_is_refused(self):
        self.assertEqual(property_lists.read_strings('/* a */ "b" = "ü \\"c\\"";\n'.encode()), {"b": 'ü \\"c\\"'})
        for text in ('"a" = "b"', "a = b;", '"a" = "b"; "a" = "c";', '"a" "b";', '/* "a" = "b";'):
            with self.assertRaises(StrictError, msg=text):
                property_lists.read_strings(text.encode())
        with self.assertRaises(StrictError):
            property_lists.read_strings(b"\xff\xfe\"\0")

    def test_only_a_canonical_uuid_is_accepted(self):
        self.assertTrue(property_lists.is_uuid("6F1D2C0A-53B0-4E58-9E36-0B7C1C6A4E01"))
        for text in ("6f1d2c0a-53b0-4e58-9e36-0b7c1c6a4e01", "6F1D2C0A", "", "6F1D2C0A53B04E589E360B7C1C6A4E01"):
            self.assertFalse(property_lists.is_uuid(text), text)


if __name__ == "__main__":
    INFO, IDENTIFIER, VERSION, OLDEST = sys.argv[1:5]
    unittest.main(argv=sys.argv[:1] + sys.argv[5:])
