"""The files of the project, as git knows them, for the checks in this folder."""
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent


def project_files(*patterns):
    """Paths below ROOT of what is tracked, or new and not ignored, and matches one of git's patterns."""
    listing = subprocess.run(
        ["git", "-c", f"safe.directory={ROOT}", "ls-files", "-z", "--cached", "--others", "--exclude-standard",
         "--", *patterns],
        cwd=ROOT, check=True, capture_output=True, text=True).stdout
    return sorted({path for path in listing.split("\0") if path and (ROOT / path).is_file()})


def read(path):
    return (ROOT / path).read_text(encoding="utf-8")


def finish(findings):
    """Prints the findings; the exit status tells whether there were any."""
    for finding in findings:
        print(finding)
    raise SystemExit(1 if findings else 0)
