"""Plays a script of a sequence picture with prefs-session and notes what happened.

A script is one for prefs-session whose comments say what else the picture holds:

    # the first one is the title
    ## a heading; what comes before the first one only sets the stage
    #> shows CONTROL      what the user sees in it now; `shows window` for the window itself
    #> host: TEXT         what a host does meanwhile, which no run can show
    #> browser            signs in at the page that the plug-in opened last
    #> until sent N       waits for that command
    #> leave out KEYS     keys that the picture does not show

AUTHORITY in a step is the address of a sign-in authority that runs as long as the script does; its tokens are good for
a second."""
import contextlib
import dataclasses
import json
import os
import re
import subprocess
import threading
import time

from project_files import read
from sequence_authority import TIME_LIMIT, Authority, browse
from sequence_text import changed, content_lines, control_of, control_text, find_control, user_action

END = {"echo": "the step has ended"}
STAGE = {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "LANGUAGE": "", "QT_SCALE_FACTOR": "1"}


@dataclasses.dataclass
class Event:
    """An arrow between two lanes; a note when both are one lane; a heading when there is none."""
    source: str
    target: str
    title: str
    lines: list = dataclasses.field(default_factory=list)
    kind: str = ""


def numbered_names():
    """The names of commands and notifications to the plug-in, from the host guide's tables, which are the code's."""
    tables = re.findall(r"<!-- table: (.+) -->\n((?:\|.*\n)*)", read("docs/host-guide.md"))
    return {name: dict(re.findall(r"^\| (\d+) \| `(\w+)`", rows, re.MULTILINE)) for name, rows in tables}


class Play:
    def __init__(self, folder):
        self.folder = folder
        self.names = numbered_names()
        self.title, self.events, self.left_out = "", [], set()
        self.opened, self.sent, self.is_on_stage = None, [], False
        self.lock = threading.Lock()

    def add(self, *arguments, **named):
        with self.lock:
            if self.is_on_stage:
                self.events.append(Event(*arguments, **named))

    def lines(self, content):
        return list(content_lines(content, self.left_out))

    def play(self, script):
        with contextlib.ExitStack() as stack:
            if "AUTHORITY" in script:
                authority = stack.enter_context(Authority(self.folder / "kz-sandbox", self.asked, self.answered))
                script = script.replace("AUTHORITY", authority.address)
            self.session = stack.enter_context(subprocess.Popen(
                [self.folder / "prefs-session", "--writes"], env=os.environ | STAGE, text=True,
                stdin=subprocess.PIPE, stdout=subprocess.PIPE))
            for line in filter(None, script.splitlines()):
                self.play_line(line)
            self.session.stdin.close()
            if self.session.wait(TIME_LIMIT) != 0:
                raise SystemExit("the script could not be played")

    def play_line(self, line):
        if line.startswith("## "):
            self.is_on_stage = True
            self.add("", "", line[3:])
        elif line.startswith("#> "):
            self.follow(*line[3:].split(" ", 1))
        elif line.startswith("# "):
            self.title = self.title or line[2:]
        else:
            step = json.loads(line)
            self.tell_step(step)
            self.step(step)

    def step(self, step):
        """Plays the step and notes what came back; the answer is that of a `get`."""
        for said in (step, END):
            self.session.stdin.write(json.dumps(said) + "\n")
        self.session.stdin.flush()
        result = None
        for text in self.session.stdout:
            said = json.loads(text)
            if said == END:
                return result
            if "result" in said:
                result = said["result"]
            self.tell_line(said)
        raise SystemExit("the session ended early")

    # What is drawn of a step

    def tell_step(self, step):
        if "command" in step:
            number = str(step["command"])
            self.add("Host", "Plug-in", f"{number} {self.names['commands to the plug-in'][number]}",
                     self.lines(step.get("content")), "command")
        elif "notify" in step:
            number = str(step["notify"])
            self.add("Host", "Plug-in", f"notification {number} {self.names['notifications'][number]}",
                     self.lines(step.get("content")), "notification")
        elif "post" in step:
            where = ", on another thread" if step.get("thread") == "worker" else ""
            self.add("Host", "Plug-in", f"posts {step['post']}{where}", self.lines(step["userInfo"]), "notification")
        else:
            name = control_of(step)
            control = find_control(self.step({"get": "window"})["content"], name) if name else None
            action = user_action(step, control)
            if action:
                self.add("User", "Plug-in", action, kind="user")

    def tell_line(self, said):
        if "sent" in said:
            self.sent.append(said["sent"])
            self.add("Plug-in", "Host", f"{said['sent']} {said['name']}", self.lines(said["content"]), "command")
        elif "posted" in said:
            self.add("Plug-in", "Host", f"posts {said['posted']}", self.lines(said["userInfo"]), "notification")
        elif "opened" in said:
            self.opened = said["opened"]
            self.add("Plug-in", "Browser", "opens the sign-in page", kind="web")
        elif "stored" in said:
            value = changed(said["before"], said["value"])
            content = value if isinstance(value, dict) else {said["stored"]: value}
            self.add("Plug-in", "Settings", f"writes {said['stored']}", self.lines(content), "write")
        elif "kept" in said:
            self.add("Plug-in", "Keychain", f"keeps {said['kept']}", kind="write")
        elif "removed" in said:
            self.add("Plug-in", "Keychain", f"removes {said['removed']}", kind="write")
        elif "warning" in said:
            self.add("Plug-in", "User", f"warns: “{said['warning']['message']}”", kind="user")
        elif "refused" in said or "error" in said:
            raise SystemExit(said.get("refused") or said["error"])

    # What the authority and the browser tell

    def asked(self, is_browser, what, parameters):
        self.add("Browser" if is_browser else "Plug-in", "Authority", what, self.lines(parameters), "web")

    def answered(self, is_browser, what, parameters):
        self.add("Authority", "Browser" if is_browser else "Plug-in", what, self.lines(parameters), "answer")

    def came_back(self, what, parameters):
        self.add("Browser", "Plug-in", what, self.lines(parameters), "web")

    # Directions

    def follow(self, word, rest=""):
        match word:
            case "shows":
                self.add("Plug-in", "User", self.shown(rest), kind="user")
            case "host:":
                self.add("Host", "Host", rest)
            case "browser":
                self.wait_for(lambda: self.opened, "no page was opened")
                threading.Thread(target=browse, args=(self.opened, self.came_back), daemon=True).start()
            case "until":
                number = int(rest.split()[1])
                self.wait_for(lambda: number in self.sent, f"command {number} was not sent")
            case "leave":
                self.left_out = set(rest.split()[1:])
            case _:
                raise SystemExit(f"there is no direction {word}")

    def shown(self, name):
        window = self.step({"get": "window"})
        if name == "window":
            return f"shows the window, pane “{window['selected']}”"
        control = find_control(window["content"], name)
        if control["hidden"]:
            raise SystemExit(f"{name} is hidden")
        return f"shows {control_text(control)}"

    def wait_for(self, has_happened, complaint):
        end = time.monotonic() + TIME_LIMIT
        while not has_happened():
            if time.monotonic() > end:
                raise SystemExit(complaint)
            self.step({"wait": 20})
