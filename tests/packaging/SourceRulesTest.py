"""Tests that the application has no access to the network, files, typed text or screen contents: its sources use
only the listed names of the system. Also tests that each check can fail."""

import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

import source_rules  # noqa: E402


class TheSources(unittest.TestCase):
    """The sources of the application."""

    @classmethod
    def setUpClass(cls):
        cls.files = source_rules.sources()

    def test_there_are_sources(self):
        self.assertGreater(len(self.files), 100)
        self.assertIn("CGEventTapCreate", source_rules.used_names(self.files))

    def test_every_name_of_the_system_is_allowed(self):
        self.assertEqual(source_rules.name_findings(self.files, source_rules.allowed_names()), [])

    def test_every_header_is_allowed(self):
        self.assertEqual(source_rules.header_findings(self.files), [])

    def test_every_message_is_allowed(self):
        self.assertEqual(source_rules.message_findings(self.files), [])

    def test_the_one_event_tap_asks_for_mouse_moved_alone(self):
        self.assertEqual(source_rules.tap_findings(self.files), [])


class TheChecks(unittest.TestCase):
    """Tests that each check can fail."""

    def files(self, **texts):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        root = pathlib.Path(folder.name)
        for name, text in texts.items():
            path = root / "macos" / (name + ".mm")
            path.parent.mkdir(exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return source_rules.sources(root)

    def test_a_name_that_is_not_on_the_list_is_found(self):
        for line in ("NSURLSession* session = nil;", "CGWindowListCreateImage(a, b, c, d);",
                     "[[NSFileManager alloc] init];", "CGEventTapCreateForPid(a);", "nw_connection_start(c);",
                     "const int file = open(path, 0);", "SCStream* stream = nil;", "IOHIDManagerCreate(a, b);",
                     "kCGEventKeyDown", "NSPasteboard* board = nil;", "system(command);"):
            found = source_rules.name_findings(self.files(Bad=line), source_rules.allowed_names())
            self.assertEqual(len(found), 1, line)

    def test_a_name_in_a_comment_or_a_string_is_ignored(self):
        files = self.files(Good='// NSURLSession\nconst char* text = "NSFileManager";')
        self.assertEqual(source_rules.name_findings(files, source_rules.allowed_names()), [])

    def test_a_header_that_is_not_allowed_is_found(self):
        for header in ("fstream", "filesystem", "sys/socket.h", "Network/Network.h", "dlfcn.h", "thread"):
            found = source_rules.header_findings(self.files(Bad=f"#include <{header}>\n"))
            self.assertEqual(len(found), 1, header)

    def test_a_message_that_is_not_allowed_is_found(self):
        for line in ("[NSEvent addGlobalMonitorForEventsMatchingMask:mask handler:handler];",
                     "[text writeToFile:path atomically:YES];", "[[NSString alloc] initWithContentsOfFile:path];",
                     "[NSURL URLForUbiquityContainer];", "id value = [NSDictionary dictionaryWithContentsOfURL:u];",
                     "[NSWorkspace accessibilityDisplayShouldReduceMotion];", "NSPasteboard.generalPasteboard;"):
            self.assertNotEqual(source_rules.message_findings(self.files(Bad=line)), [], line)
        fine = "NSURL* const file = [NSURL URLWithString:text];\nNSEvent* const event = other;"
        self.assertEqual(source_rules.message_findings(self.files(Good=fine)), [])

    def test_a_second_tap_or_another_mask_is_found(self):
        call = ("constexpr CGEventMask mouseMoved = CGEventMask{1} << kCGEventMouseMoved;\n"
                "port = CGEventTapCreate(kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionDefault,\n"
                "                        mouseMoved, callback, this);\n")
        self.assertEqual(source_rules.tap_findings(self.files(Good=call)), [])
        for bad in (call + call, call.replace("{1} <<", "{3} <<"), call.replace("mouseMoved, c", "~0ULL, c"),
                    call.replace("kCGSessionEventTap", "kCGHIDEventTap"), "",
                    call.replace(";\nport", ";\nmouseMoved = ~CGEventMask{0};\nport"),
                    call + "CGEventTapCreateForPSN(a, b, c, d, e, f);"):
            self.assertNotEqual(source_rules.tap_findings(self.files(Bad=bad)), [], bad)

    def test_the_list_itself_is_kept_in_order(self):
        with self.assertRaises(ValueError):
            source_rules.allowed_names("NSView")
        with self.assertRaises(ValueError):
            source_rules.allowed_names("[views]\nNSView NSView")


if __name__ == "__main__":
    unittest.main()
