"""The files of the project, as git knows them, for the tools in this folder."""
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def git_paths(*arguments):
    """The paths that a git command prints for -z."""
    command = ["git", "-c", f"safe.directory={ROOT}", *arguments]
    return [path for path in subprocess.check_output(command, cwd=ROOT, text=True).split("\0") if path]


def project_files(*patterns):
    """Paths below ROOT of what is tracked, or new and not ignored, and matches one of git's patterns."""
    listed = git_paths("ls-files", "-z", "--cached", "--others", "--exclude-standard", "--", *patterns)
    return sorted({path for path in listed if (ROOT / path).is_file()})


def read(path):
    return (ROOT / path).read_text(encoding="utf-8")


def project_includes():
    """What each source and header of the project includes in quotes."""
    return {path: INCLUDE.findall(read(path)) for path in project_files("*.h", "*.cpp")}


def finish(findings):
    """Prints the findings; the exit status is 1 when there are any."""
    for finding in findings:
        print(finding)
    raise SystemExit(1 if findings else 0)
