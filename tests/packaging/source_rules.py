"""Checks of what the application's sources use of macOS: names, headers, messages and the event mask."""

import pathlib
import re
import sys

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from tidy_rules.project import SourceFile  # noqa: E402

ALLOWED_NAMES = pathlib.Path(__file__).with_name("allowed_names.txt")

# The prefixes of Apple's frameworks and of system libraries outside of the language.
_NAME = re.compile(
    r"(?<![\w.>])(?:k?(?:AB|AC|AE|AR|AS|AU|AV|AX|CA|CB|CF|CG|CI|CK|CL|CM|CN|CS|CT|CV|DA|EK|FS|GC|HI|IO|LA|LS|MD"
    r"|MK|MT|NE|NS|NW|PDF|PH|QL|SC|SF|SK|SL|SM|SS|Sec|UN|UT|WK)[A-Z]\w*"
    r"|(?:dispatch|xpc|nw|notify|mach|task|vm|bootstrap|launch|objc|class|method|sel|os)_\w+)")
# Functions of the C library that access files, the network, other programs or the machine. Some are
# common words: in the portable half they count only if qualified.
_C_FUNCTION = re.compile(
    r"(?<![\w.>:])((?:std)?::)?(?:(dlopen|dlsym|fork|vfork|execv\w*|execl\w*|posix_spawn\w*|popen|socket|getaddrinfo"
    r"|gethostbyname|openat|creat|fopen|freopen|opendir|mkstemp|tmpfile|unlink|mmap|shm_open|ioctl|sysctl"
    r"|sysctlbyname|ptrace)|(system|connect|bind|listen|accept|open|rename|remove|kill))\s*\(")
# Objective-C classes that may receive only these class messages.
_CLASS_MESSAGES = {
    "NSEvent": {"mouseLocation", "otherEventWithType"},
    "NSWorkspace": {"sharedWorkspace"},
    "NSURL": {"URLWithString", "fileURLWithPath"},
    "NSProcessInfo": {"processInfo"},
    "NSBundle": {"mainBundle"},
    "NSRunningApplication": {"currentApplication", "runningApplicationsWithBundleIdentifier"},
    "NSUserDefaults": {"standardUserDefaults"},
    "NSString": {"alloc", "class"},
    "NSDictionary": set(),
    "NSArray": set(),
    "NSImage": {"imageNamed", "imageWithSystemSymbolName"},
}
# Messages that access files, the network, other programs, typed text or screen contents.
FORBIDDEN_MESSAGES = re.compile(
    r"(?:\w*[cC]ontentsOf(?:File|URL)|byReferencing(?:File|URL)|writeTo(?:File|URL)\w*"
    r"|createFileAtPath|createDirectoryAt\w+|removeItemAt\w+|fileHandleFor\w+|\w*[uU]biquity\w*|URLsForDirectory"
    r"|\w*dataTask\w*|\w*uploadTask\w*|\w*downloadTask\w*|sendSynchronousRequest\w*|loadRequest"
    r"|addGlobalMonitorForEventsMatchingMask|addLocalMonitorForEventsMatchingMask|eventWithCGEvent"
    r"|\w*[pP]asteboardWithName|generalPasteboard|\w*[sS]creenCapture\w*|\w*createImage\w*FromWindow\w*"
    r"|launchedTask\w*|launchTask\w*|launchAndReturnError|executeAndReturnError|openApplicationAtURL"
    r"|initWithSuiteName|addSuiteNamed|persistentDomainForName|performSelectorInBackground"
    r"|requestAccessForMediaType\w*)\Z")
_CLASS_MESSAGE = re.compile(r"\b(NS[A-Z]\w+)\s*(?:\.\s*|\s)(\w+)")

ALLOWED_HEADERS = {
    "AppKit/AppKit.h", "ApplicationServices/ApplicationServices.h", "CoreText/CoreText.h",
    "Foundation/Foundation.h", "QuartzCore/CABase.h", "QuartzCore/QuartzCore.h",
    "ServiceManagement/ServiceManagement.h", "dispatch/dispatch.h",
    # The language's headers, without those that open files, threads or processes.
    "algorithm", "any", "array", "bit", "cassert", "charconv", "cmath", "compare", "concepts", "cstddef", "cstdint",
    "cstdio", "cstdlib", "cstring", "functional", "initializer_list", "iterator", "limits", "list", "map",
    "memory", "numbers", "numeric", "optional", "ranges", "set", "span", "string", "string_view", "tuple",
    "type_traits", "typeinfo", "utility", "variant", "vector",
}
_HEADER = re.compile(r"^[ \t]*#[ \t]*(?:include|import)[ \t]*<([^>]+)>", re.MULTILINE)

_TAP = re.compile(r"\bCGEventTapCreate\s*\(([^;{}]*)\)\s*\)?\s*;")
_MASK = "constexprCGEventMaskmouseMoved=CGEventMask{1}<<kCGEventMouseMoved;"
# Holds the declarations for other systems than macOS, and no calls.
_DECLARATIONS = "Orvane/platform/Quartz.hpp"


def allowed_names(text=None):
    """The names of the list; each belongs to a heading that states its purpose."""
    names, heading = set(), None
    for line in (ALLOWED_NAMES.read_text(encoding="utf-8") if text is None else text).splitlines():
        line = line.split("#")[0].strip()
        if line.startswith("["):
            heading = line
        elif line:
            if heading is None:
                raise ValueError(f"{line}: has no heading")
            for name in line.split():
                if name in names:
                    raise ValueError(f"{name}: is listed twice")
                names.add(name)
    return names


def sources(root=ROOT):
    """All C++ and Objective-C++ of the shipped application."""
    return [SourceFile(root, path.relative_to(root).as_posix())
            for top in ("Orvane", "macos") for path in sorted((root / top).rglob("*"))
            if path.suffix in (".hpp", ".cpp", ".mm", ".h", ".m", ".c", ".cc")]


def used_names(files):
    """The names of the system that the code uses, each with its first line."""
    used = {}
    for file in files:
        for number, line in file.code_lines():
            if re.match(r"\s*#", line):
                continue
            found = [match.group() for match in _NAME.finditer(line)]
            found += [plain or word for scope, plain, word in _C_FUNCTION.findall(line)
                      if plain or scope or file.top == "macos"]
            for name in found:
                used.setdefault(name, f"{file}:{number}")
    return used


def name_findings(files, allowed):
    """Uses of names that are not allowed."""
    return [f"{place}: {name} is not in the list of what the application may use"
            for name, place in used_names(files).items() if name not in allowed]


def header_findings(files):
    """Includes of system headers that are not allowed."""
    return [f"{file}: <{header}> is not among the headers that the application may include"
            for file in files for header in _HEADER.findall(file.text) if header not in ALLOWED_HEADERS]


def message_findings(files):
    """Messages that are not allowed."""
    findings = []
    for file in files:
        if file.path.suffix not in (".mm", ".m") and file.top != "macos":
            continue
        for number, line in file.code_lines():
            for name, message in _CLASS_MESSAGE.findall(line):
                # A word after a type is a variable unless it is in a message or after a dot.
                sent = re.search(r"(?:\[\s*" + name + r"\s+|\b" + name + r"\s*\.\s*)" + message + r"\b", line)
                if sent and name in _CLASS_MESSAGES and message not in _CLASS_MESSAGES[name]:
                    findings.append(f"{file}:{number}: {name} may not be sent {message}")
            for word in re.findall(r"\b[a-z]\w+", line):
                if FORBIDDEN_MESSAGES.match(word):
                    findings.append(f"{file}:{number}: {word} accesses what the application must not")
    return findings


def tap_findings(files):
    """Checks that there is one event tap, whose mask contains only mouse-moved events."""
    taps = [(file, match) for file in files if str(file) != _DECLARATIONS
            for match in _TAP.finditer(file.code())]
    mentions = sum(len(re.findall(r"\bCGEventTapCreate\w*", file.code())) for file in files
                   if str(file) != _DECLARATIONS)
    if len(taps) != 1 or mentions != 1:
        return [f"{mentions} event taps are created, {len(taps)} of them readable; there must be one"]
    file, match = taps[0]
    arguments = [argument.strip() for argument in match.group(1).split(",")]
    findings = []
    if arguments[:4] != ["kCGSessionEventTap", "kCGTailAppendEventTap", "kCGEventTapOptionDefault", "mouseMoved"]:
        findings.append(f"{file}: the event tap is created with {', '.join(arguments[:4])}")
    if re.sub(r"\s", "", file.code()).count(_MASK) != 1 or len(re.findall(r"\bmouseMoved\b", file.code())) != 2:
        findings.append(f"{file}: the mask does not consist of mouse-moved events alone")
    return findings
