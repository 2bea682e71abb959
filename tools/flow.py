#!/usr/bin/env python3
"""flow.py PROGRAMS SCRIPT: plays a script of prefs-session with the programs in that folder and prints what happened as
a Mermaid sequence diagram.

    #> TEXT    is a line of the diagram; what happens before the first one is not drawn
    #browse    waits until the plug-in opens a page, and loads it as a browser in which the user is signed in
    #wait N    waits until the plug-in sends command N

AUTHORITY in a step is the address of a sign-in authority whose access tokens are good for a second."""
import contextlib
import json
import os
import pathlib
import re
import subprocess
import sys
import threading
import time
import urllib.request

ENVIRONMENT = {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "LANGUAGE": "", "QT_SCALE_FACTOR": "1"}
TIME_LIMIT = 60
BROWSER = urllib.request.build_opener(urllib.request.ProxyHandler({}))
END = {"echo": "end of step"}
SECRETS = {"Password", "QRT_CredentialContent", "QRT_ListingMeeting_exchOnlineToken"}
# The same in every flow.
LEFT_OUT = {"TelemetryKey_MetricName", "TelemetryKey_ActionFrom"}


@contextlib.contextmanager
def running_sandbox(programs):
    """Runs kz-sandbox until the `with` ends; the value is the description that it prints."""
    with subprocess.Popen([programs / "kz-sandbox", "--give", "--lifetime", "1", "--until-input-ends"],
                          stdin=subprocess.PIPE, stdout=subprocess.PIPE) as sandbox:
        yield json.loads(sandbox.stdout.readline())


def command_tables(programs):
    return json.loads(subprocess.check_output([programs / "print-commands"]))


def values_in(content, indent=""):
    """Every key with its value as text; the entries of an inner dictionary follow its key."""
    for key, value in sorted((content or {}).items()):
        if isinstance(value, dict):
            yield indent + key, ""
            yield from values_in(value, indent + "– ")
        elif key not in LEFT_OUT:
            is_json = isinstance(value, str) and value.startswith("{")
            yield indent + key, "…" if key in SECRETS else "JSON text" if is_json else json.dumps(value, ensure_ascii=False)


class Player:
    def __init__(self, session, tables):
        self.session = session
        self.commands, self.notifications = ({row[0]: row[1] for row in tables[name]}
                                             for name in ("commands to the plug-in", "notifications"))
        self.lines, self.sent, self.opened = [], set(), None

    def play(self, line):
        if line.startswith("#> "):
            self.lines.append(line[3:])
        elif line.startswith("#wait "):
            self.wait_for(lambda: int(line[6:]) in self.sent, line)
        elif line == "#browse":
            self.wait_for(lambda: self.opened, line)
            threading.Thread(target=BROWSER.open, args=[self.opened], daemon=True).start()
        elif line and not line.startswith("#"):
            self.run(json.loads(line))

    def run(self, step):
        self.draw(step)
        for said in (step, END):
            print(json.dumps(said), file=self.session.stdin, flush=True)
        for line in self.session.stdout:
            event = json.loads(line)
            if event == END:
                return
            self.draw(event)
        raise SystemExit("the session ended early")

    def wait_for(self, has_happened, line):
        end = time.monotonic() + TIME_LIMIT
        while not has_happened():
            if time.monotonic() > end:
                raise SystemExit(f"{line}: it did not happen")
            self.run({"wait": 20})

    def arrow(self, source, target, title, content=None, before=None):
        """Adds an arrow with those values of the content that differ from `before`."""
        known = dict(values_in(before))
        values = [f"{key}: {text}".rstrip() for key, text in values_in(content) if known.get(key) != text]
        if self.lines:
            self.lines.append(f"{source}->>{target}: " + "<br/>".join([title, *values]))

    def draw(self, said):
        """Draws a step of the host, or an event that prefs-session prints."""
        content = said.get("content", said.get("userInfo"))
        match said:
            case {"command": number}:
                self.arrow("Host", "Plugin", f"{number} {self.commands[number]}", content)
            case {"notify": number}:
                self.arrow("Host", "Plugin", f"notification {number} {self.notifications[number]}", content)
            case {"post": name}:
                self.arrow("Host", "Plugin", f"posts {name}", content)
            case {"sent": number, "name": name}:
                self.sent.add(number)
                self.arrow("Plugin", "Host", f"{number} {name}", content)
            case {"posted": name}:
                self.arrow("Plugin", "Host", f"posts {name}", content)
            case {"opened": address}:
                self.opened = address
                self.arrow("Plugin", "Browser", "opens the sign-in page")
            case {"stored": key, "before": before, "value": value}:
                self.arrow("Plugin", "Settings", f"writes {key}", *(
                    of if isinstance(of, dict) else {key: of} for of in (value, before)))
            case {"kept": key}:
                self.arrow("Plugin", "Keychain", f"keeps {key}")
            case {"refused": reason} | {"error": reason}:
                raise SystemExit(reason)


def flow_diagram(programs, script, tables, authority):
    with subprocess.Popen([programs / "prefs-session", "--writes"], env=os.environ | ENVIRONMENT, text=True,
                          stdin=subprocess.PIPE, stdout=subprocess.PIPE) as session:
        player = Player(session, tables)
        for line in script.replace("AUTHORITY", authority).splitlines():
            player.play(line)
    # Mermaid would end the line there.
    return re.sub("[#;]", lambda match: f"#{ord(match[0])};", "\n  ".join(["sequenceDiagram", *player.lines]))


def main():
    programs, script = map(pathlib.Path, sys.argv[1:])
    with running_sandbox(programs) as sandbox:
        print(flow_diagram(programs, script.read_text(encoding="utf-8"), command_tables(programs), sandbox["authority"]))


if __name__ == "__main__":
    main()
