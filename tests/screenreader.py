#!/usr/bin/env python3
"""What assistive technology finds and is told: plays the gallery's scripts, and at each of their pictures walks the
windows through AT-SPI and presses Tab. Needs a D-Bus session and a window system of its own.

screenreader.py GUIHOST GALLERY_SCRIPT...
"""
import json
import os
import pathlib
import queue
import subprocess
import sys
import tempfile
import threading

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Role, State = Atspi.Role, Atspi.StateType
PATIENCE = 60  # seconds that anything may take on a busy machine
TYPED = "Qx7hunter2"
COUNTDOWN = "left to answer"

# What must be heard while a script is played, without the focus going there.
HEARD = {
    "ApproveRemoteConnectionDialog": ["Jane Doe - Remote control. Jane Doe of Northwind Support asks to see your screen"],
    "ProgressDialog": ["Progress"],
    "RemoteConnectionDialog": ["Session started: Jane Doe, Remote Control Session",
                               "Session started: John Roe, Remote Tool Session",
                               "Session ended: Jane Doe, Remote Control Session"],
}

events = []
failures = []


def fail(where, message):
    if (where, message) not in failures:
        failures.append((where, message))
        print(f"FAIL {where}: {message}", flush=True)


def note(event):
    """Keeps an event, with the role and the name that its object has now."""
    try:
        role, name = event.source.get_role(), event.source.get_name()
    except GLib.Error:
        role = name = None  # The object is gone, with the window that it was in.
    events.append((event.type, event.detail1, event.any_data, event.source, role, name))


def wait_for(condition):
    """Handles events until the condition holds."""
    context = GLib.MainContext.default()
    deadline = GLib.get_monotonic_time() + PATIENCE * 1000000
    while not condition():
        if GLib.get_monotonic_time() > deadline:
            return False
        tick = GLib.timeout_add(50, lambda: True)
        context.iteration(True)
        GLib.source_remove(tick)
    return True


def walk(part):
    """The part and all that can be reached from it."""
    yield part
    for index in range(part.get_child_count()):
        child = part.get_child_at_index(index)
        if child:
            yield from walk(child)


def has(part, state):
    return part.get_state_set().contains(state)


def spoken(part):
    """Every text that is handed out about a part."""
    texts = [part.get_name(), part.get_description()]
    if part.get_text_iface():
        length = part.get_character_count()
        texts.append(Atspi.Text.get_text(part, 0, length))
        texts.append(Atspi.Text.get_text_at_offset(part, length, Atspi.TextBoundaryType.WORD_START).content)
    return texts


def inspect(where, window, secrets):
    """Checks what is told of the parts of a window. Returns those that take the focus."""
    buttons, stops = set(), []
    for part in walk(window):
        if not has(part, State.SHOWING):
            continue
        texts = spoken(part)
        name, description = texts[:2]
        role = part.get_role()
        focusable = has(part, State.FOCUSABLE)
        if not name and (focusable or part == window):
            fail(where, f"a {part.get_role_name()} has no name")
        if name != name.strip():
            fail(where, f"the name '{name}' has blanks around it")
        if name and description.strip() == name.strip():
            fail(where, f"'{name}' is spoken again as description")
        if role == Role.PUSH_BUTTON:
            if name in buttons:
                fail(where, f"two buttons are called '{name}'")
            buttons.add(name)
        if role == Role.PROGRESS_BAR:
            value = part.get_value_iface()
            if not value or (value.get_minimum_value(), value.get_maximum_value()) != (0, 100):
                fail(where, "the progress bar has no value from 0 to 100")
        if any(secret in text for text in texts for secret in secrets):
            fail(where, f"a {part.get_role_name()} gives a secret away")
        if focusable and has(part, State.SENSITIVE) and role != Role.LIST_ITEM:
            stops.append(part)
    return stops


def focus_moved(start):
    return lambda: any(kind == "object:state-changed:focused" and on for kind, on, *_ in events[start:])


def press(where, *keys):
    """Presses keys, of which the last moves the focus."""
    start = len(events)
    subprocess.run(["xdotool", *keys], check=True)
    if not wait_for(focus_moved(start)):
        fail(where, f"nothing tells of the focus after {' '.join(keys)}")


def endure_countdown(where, button):
    """Checks that a focused countdown does not speak whenever it changes. A reader that is told of a new name and finds
    the old one says nothing."""
    start = len(events)
    description = button.get_description()
    calm = ("object:property-change:accessible-name", button.get_name())
    if not wait_for(lambda: button.get_description() != description):
        fail(where, "the countdown stands still")
    if any(kind.startswith("object:property-change") and source == button and (kind, name) != calm
           for kind, _, _, source, _, name in events[start:]):
        fail(where, "every second of the countdown is spoken")


def use(where, host, window, stops):
    """Goes through a window by Tab and fills its password fields."""
    # As a task bar does it: no window manager takes this for an intrusion.
    subprocess.run(["wmctrl", "-a", window.get_name()], check=True)
    if not wait_for(lambda: has(window, State.ACTIVE)):
        fail(where, "the window does not become active")
        return
    for stop in stops:
        press(where, "key", "Tab")
        focused = [part for part in stops if has(part, State.FOCUSED)]
        if focused and focused[0].get_role() == Role.PASSWORD_TEXT:
            press(where, "type", TYPED + "\t")
        if focused and focused[0].get_role() == Role.LINK:
            focused[0].do_action(0)
            host.wait_for("event")
        if focused and COUNTDOWN in focused[0].get_description():
            endure_countdown(where, focused[0])


class Host:
    def __init__(self, program, directory):
        environment = dict(os.environ, QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LANGUAGE="en")
        self.process = subprocess.Popen([program, "run", "-", "--pictures", directory], env=environment, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(json.loads(line))

    def do(self, line):
        self.process.stdin.write(line)
        self.process.stdin.flush()

    def wait_for(self, key):
        """Waits until the host prints a line with that key."""
        while key not in self.lines.get(timeout=PATIENCE):
            pass

    def windows(self):
        desktop = Atspi.get_desktop(0)
        applications = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
        application = next(a for a in applications if a and a.get_process_id() == self.process.pid)
        application.set_cache_mask(Atspi.Cache.NONE)
        children = [application.get_child_at_index(i) for i in range(application.get_child_count())]
        return [window for window in children if window and has(window, State.SHOWING)]


def secrets_of(command):
    """Values that a script sets and that nobody else may learn."""
    for name, value in command.get("properties", {}).items():
        if value and isinstance(value, str) and ("password" in name.lower() or "token" in name.lower()):
            yield value


def play(host, script):
    secrets = {TYPED}
    windows_seen = 0
    for line in script.read_text(encoding="utf-8").splitlines(keepends=True):
        command = json.loads(line)
        secrets.update(secrets_of(command))
        host.do(line)
        if command["do"] != "picture":
            continue
        host.wait_for("picture")
        for window in host.windows():
            windows_seen += 1
            stops = inspect(command["file"], window, secrets)
            if len(stops) > 1:
                use(command["file"], host, window, stops)
                inspect(command["file"], window, secrets)
    if not windows_seen:
        fail(script.stem, "no window was seen")
    spoken_of_itself = (("object:state-changed:showing", Role.NOTIFICATION),
                        ("object:property-change:accessible-value", Role.PROGRESS_BAR))
    announced = [name for kind, _, _, _, role, name in events if name and (kind, role) in spoken_of_itself]
    for words in HEARD.get(script.stem, []):
        if not any(name.startswith(words) for name in announced):
            fail(script.stem, f"nobody hears '{words}'")
    for kind, _, data, _, role, name in events:
        texts = [text for text in (data, name) if isinstance(text, str)]
        if any(secret in text for text in texts for secret in secrets):
            fail(script.stem, f"{kind} gives a secret away")
        if kind.startswith("object:text-changed") and role == Role.PASSWORD_TEXT and any(map(str.isalnum, texts[0])):
            fail(script.stem, f"{kind} tells what is typed into a password field")


def count_to_hundred(host):
    """Progress is told in steps of ten percent."""
    events.clear()
    for command in ({"do": "get"}, {"do": "show"},
                    *({"do": "set", "properties": {"progress": [percent, 100]}} for percent in range(101)),
                    {"do": "hide"}):
        host.do(json.dumps({**command, "dialog": "ProgressDialog"}) + "\n")
    hidden = ("object:state-changed:showing", 0, Role.DIALOG)
    if not wait_for(lambda: any((kind, on, role) == hidden for kind, on, _, _, role, _ in events)):
        fail("progress", "nothing tells that the dialog is hidden")
    told = sum(kind == "object:property-change:accessible-value" for kind, *_ in events)
    if told != 10:
        fail("progress", f"it is told {told} times on the way from 0 to 100")


def main(program, *scripts):
    Atspi.init()
    Atspi.set_timeout(10000, PATIENCE * 1000)
    listener = Atspi.EventListener.new(note)
    listener.register("object")
    with tempfile.TemporaryDirectory() as directory:
        host = Host(program, directory)
        try:
            for script in scripts:
                print(script, flush=True)
                events.clear()
                play(host, pathlib.Path(script))
            count_to_hundred(host)
            host.process.stdin.close()
            if host.process.wait(PATIENCE) != 0:
                fail("guihost", "a script was not played to its end")
        except (GLib.Error, queue.Empty) as error:
            fail(script, f"the dialogs do not answer: {error}")
        finally:
            host.process.kill()
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
