"""How what crosses the border reads in a sequence picture."""
import json
import re

# What stands under these keys is a secret, or differs from run to run.
MASKED = {"Password", "QRT_CredentialContent", "QRT_ListingMeeting_exchOnlineToken", "access_token", "refresh_token",
          "id_token", "code", "code_verifier", "code_challenge", "state", "expires_in"}
NAME = re.compile(r"^(k[A-Z]|kKZ|QRT_|Telemetry)\w+$")
PORT = re.compile(r"(127\.0\.0\.1):\d+")


def value_text(value):
    if not isinstance(value, str):
        return json.dumps(value)
    return value if NAME.match(value) else "“" + PORT.sub(r"\1:…", value) + "”"


def as_object(value):
    """The object that a value is, or that its text holds."""
    if isinstance(value, str) and value.startswith("{"):
        value = json.loads(value)
    return value if isinstance(value, dict) else None


def content_lines(content, left_out=(), depth=0):
    """A line for each key, as (depth, key, text); nested contents follow their key, which has no text then."""
    for key, value in sorted((content or {}).items()):
        if key in left_out:
            continue
        inner = as_object(value)
        if inner is not None:
            yield depth, key, "JSON text" if isinstance(value, str) else ""
            yield from content_lines(inner, left_out, depth + 1)
        elif key in MASKED and value:
            yield depth, key, "…"
        else:
            yield depth, key, value_text(value)


def changed(before, after):
    """What of `after` is new or another than in `before`."""
    if not isinstance(before, dict) or not isinstance(after, dict):
        return after
    return {key: changed(before.get(key), value) for key, value in after.items() if before.get(key) != value}


def controls_of(view, parents=()):
    """Every control of a window's content, as (its path of names, what `get` tells of it)."""
    path = (*parents, view.get("name") or "")
    yield path, view
    for child in view.get("children", []):
        yield from controls_of(child, path)


def find_control(content, name):
    *parents, last = name.split("/")
    found = [view for path, view in controls_of(content) if path[-1] == last and set(parents) <= set(path)]
    if len(found) != 1:
        raise SystemExit(f"{len(found)} controls are called {name}")
    return found[0]


def control_text(control):
    """How a user would call the control."""
    return f"“{control.get('text') or control.get('placeholder') or control.get('toolTip') or control['name']}”"


def control_of(step):
    """The name of the control that a user's step is about, None when it names none."""
    return step.get("click") or step.get("type") or step.get("choose") or step.get("in")


def user_action(step, control):
    """What a user does in a step, "" when it is no user's; `control` is what the step is about."""
    match step:
        case {"pane": name}:
            return f"chooses “{name}” in the toolbar"
        case {"close": _}:
            return "closes the window"
        case {"click": _}:
            return f"clicks {control_text(control)}"
        case {"choose": _, "item": item}:
            return f"chooses “{item}” in place of {control_text(control)}"
        case {"type": _, "text": text}:
            return f"types {'…' if control['secure'] else f'“{text}”'} into “{control['placeholder']}”"
        case {"key": key}:
            return f"presses {key}"
    return ""
