"""Tests of the workflow that builds, tests and publishes: it parses, pins all third-party actions to commits, and
has time limits. Exits with 77, which means skipped, if Python has no YAML."""

import pathlib
import re
import subprocess
import sys
import unittest

try:
    import yaml
except ImportError:
    print("Skipped: Python has no YAML; on Debian it is the package python3-yaml.")
    sys.exit(77)

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / ".github" / "workflows"
_COMMIT = re.compile(r"[0-9a-f]{40}")


def steps(workflow):
    """Every step of every job."""
    return [step for job in workflow["jobs"].values() for step in job["steps"]]


def pin_findings(text):
    """Actions and repositories that are pinned to a tag or a branch, which may change."""
    findings = []
    for step in steps(yaml.safe_load(text)):
        action, _, commit = step.get("uses", "").partition("@")
        if action and not _COMMIT.fullmatch(commit):
            findings.append(f"{action} is not named by a commit")
        if "repository" in step.get("with", {}) and not _COMMIT.fullmatch(str(step["with"].get("ref", ""))):
            findings.append(f"{step['with']['repository']} is not named by a commit")
    # A hash is not readable, so a comment names its release.
    findings += [f"no release stands behind {commit}"
                 for commit, rest in re.findall(r"([0-9a-f]{40})(.*)", text) if not re.fullmatch(r" # v\d+(\.\d+){2}", rest)]
    return findings


class TheWorkflow(unittest.TestCase):
    """.github/workflows/tests.yml."""

    @classmethod
    def setUpClass(cls):
        cls.text = (FOLDER / "tests.yml").read_text(encoding="utf-8")
        cls.workflow = yaml.safe_load(cls.text)
        cls.jobs = cls.workflow["jobs"]

    def step(self, job, name):
        return next(step for step in self.jobs[job]["steps"] if step.get("name", "").startswith(name))

    def test_it_is_the_only_one(self):
        self.assertEqual([path.name for path in FOLDER.iterdir()], ["tests.yml"])

    def test_third_party_actions_are_pinned_to_commits(self):
        self.assertEqual(pin_findings(self.text), [])

    def test_every_job_ends(self):
        for name, job in self.jobs.items():
            self.assertLessEqual(job["timeout-minutes"], 90, name)

    def test_steps_that_may_hang_have_their_own_limits(self):
        for name in ("Every window", "A second copy", "The package", "The unit tests"):
            self.assertLessEqual(self.step("macos", name)["timeout-minutes"], 20, name)
        self.assertLess(self.step("publish", "The package")["timeout-minutes"], self.jobs["publish"]["timeout-minutes"])

    def test_it_runs_on_every_hosted_macos(self):
        runners = self.jobs["macos"]["strategy"]["matrix"]["runner"]
        self.assertEqual(runners, ["macos-14", "macos-15", "macos-15-intel", "macos-26"])
        self.assertEqual(self.jobs["macos"]["continue-on-error"], "${{ matrix.runner == 'macos-14' }}")

    def test_publishing_needs_all_tests_and_alone_may_write(self):
        self.assertEqual(self.jobs["publish"]["needs"], ["linux", "gnustep", "macos"])
        self.assertEqual(self.workflow["permissions"], {"contents": "read"})
        self.assertEqual([name for name, job in self.jobs.items() if "permissions" in job], ["publish"])

    def test_the_scripts_of_the_steps_parse(self):
        for step in steps(self.workflow):
            script = re.sub(r"\$\{\{.*?\}\}", "expression", step.get("run", ""))
            result = subprocess.run(["bash", "-n"], input=script, capture_output=True, text=True, check=False)
            self.assertEqual((result.returncode, result.stderr), (0, ""), script)


class TheChecks(unittest.TestCase):
    """Tests that the checks can fail."""

    def findings(self, step):
        return pin_findings("jobs:\n  one:\n    steps:\n" + "".join(f"      {line}\n" for line in step.splitlines()))

    def test_what_is_not_pinned_is_found(self):
        commit = "0123456789abcdef0123456789abcdef01234567"
        self.assertEqual(self.findings(f"- uses: actions/a@{commit} # v1.2.3"), [])
        for step in ("- uses: actions/a@v4", "- uses: actions/a@v4.2.2", "- uses: actions/a", f"- uses: actions/a@{commit[:7]}",
                     f"- uses: actions/a@{commit}", f"- uses: actions/a@{commit} # main",
                     f"- uses: actions/a@{commit} # v1.2.3\n  with:\n    repository: b/c\n    ref: v1.14.0",
                     f"- uses: actions/a@{commit} # v1.2.3\n  with:\n    repository: b/c"):
            self.assertEqual(len(self.findings(step)), 1, step)


if __name__ == "__main__":
    unittest.main()
