"""A session of Wine on a screen, its programs and their windows.

tarnwick-window-agent, which runs in the session, tells what windows there are; see
its main.cpp. Places are pixels of the screen.
"""
import json
import os
import select
import subprocess

from screen import Screen, Timeout, wait_for


class Session:
    def __init__(self, wine, agent, folder, dpi=96):
        self.folder, self.dpi = os.path.abspath(folder), dpi
        os.makedirs(self.folder, exist_ok=True)
        self.screen = Screen()
        self._pages = os.path.join(self.folder, f"opened-pages-{dpi}dpi.log")
        with open(self._pages, "w"):
            pass
        self._agent = subprocess.Popen(
            [wine, "run", agent, str(dpi), self._pages], stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, env=dict(os.environ, DISPLAY=self.screen.display))
        self._bytes = b""
        self._programs = 0
        self.ask("tops")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._agent.stdin.close()
        try:
            self._agent.wait(15)
        except subprocess.TimeoutExpired:
            self._agent.terminate()
            self._agent.wait()
        self.screen.close()

    def ask(self, *words, seconds=120):
        line = " ".join(map(str, words)) + "\n"
        self._agent.stdin.write(line.encode("latin-1"))
        self._agent.stdin.flush()
        while b"\n" not in self._bytes:
            if not select.select([self._agent.stdout], [], [], seconds)[0]:
                raise Timeout(f"the agent does not answer: {line}")
            chunk = os.read(self._agent.stdout.fileno(), 1 << 16)
            if not chunk:
                raise Timeout("the agent ended")
            self._bytes += chunk
        answer, _, self._bytes = self._bytes.partition(b"\n")
        return json.loads(answer)

    def pages(self):
        """The files of all pages that have been opened so far, the latest last."""
        with open(self._pages) as file:
            lines = file.read().split("\n")[:-1]
        # The machine's own files are the drive Z.
        return [line.replace("\\", "/").removeprefix("Z:") for line in lines]

    def start(self, *command):
        self._programs += 1
        log = os.path.join(self.folder, f"program-{self._programs}.log")
        words = [f'"{word}"' if " " in str(word) else str(word) for word in command]
        number = self.ask("start", log, *words)
        assert number, f"cannot be started: {command}"
        return Program(self, number, log)


class Program:
    def __init__(self, session, number, log):
        self.session, self.number, self._log = session, number, log

    def printed(self):
        with open(self._log, encoding="latin-1") as file:
            return file.read()

    def alive(self):
        return bool(self.session.ask("program", self.number)["alive"])

    def wait(self, seconds=60):
        """Its exit code."""
        wait_for(lambda: not self.alive(), "the program does not end", seconds)
        return self.session.ask("program", self.number)["code"]

    def end(self):
        self.session.ask("end", self.number)

    def resources(self):
        """How many GDI and USER objects it holds, and how many bytes of its own."""
        return self.session.ask("resources", self.number)

    def windows(self):
        return [Window(self.session, facts) for facts in self.session.ask("tops")
                if facts["process"] == self.number]

    def window(self, title, seconds=60):
        """The window with this title, once it is there."""
        def look():
            if not self.alive():
                raise Timeout(f"ended before its window {title!r} came: {self.printed()}")
            return next((one for one in self.windows() if one.text == title), None)
        return wait_for(look, lambda: f"no window {title!r} among "
                        f"{[one.text for one in self.windows()]}", seconds)


class Window:
    """A window, or a control in one. Facts are those of the last look."""

    def __init__(self, session, facts):
        self.session, self.screen = session, session.screen
        self._take(facts)

    def _take(self, facts):
        self.number, self.id, self.text = facts["window"], facts["id"], facts["text"]
        self.class_name, self.visible = facts["class"], bool(facts["visible"])
        self.enabled, self.checked = bool(facts["enabled"]), facts["checked"]
        self.frame, self.client = facts["frame"], facts["client"]

    def look(self):
        self._take(self.session.ask("window", self.number))
        return self

    def gone(self):
        return not self.look().class_name

    def children(self):
        return [Window(self.session, facts) for facts in self.session.ask("children", self.number)]

    def item(self, number):
        """The control with this id."""
        for child in self.children():
            if child.id == number:
                return child
        raise LookupError(f"no control {number} in {self.text!r}")

    def send(self, message, wparam=0, lparam=0):
        return self.session.ask("send", self.number, message, wparam, lparam)

    def tips(self):
        return self.session.ask("tips", self.number)

    def rows(self):
        """The texts of a list box."""
        return self.session.ask("rows", self.number)

    def has_focus(self):
        return self.session.ask("focus")["focus"] == self.number

    # Places in it, from the top left of its client area; fractions are of its size.

    @property
    def size(self):
        return self.client[2] - self.client[0], self.client[3] - self.client[1]

    def place(self, x=0.5, y=0.5):
        width, height = self.size
        along = lambda value, length: int(value * length) if isinstance(value, float) else value
        return self.client[0] + along(x, width), self.client[1] + along(y, height)

    def click(self, x=0.5, y=0.5, button=1, times=1):
        self.screen.click(*self.place(x, y), button=button, times=times)

    def move(self, x=0.5, y=0.5):
        self.screen.move(*self.place(x, y))

    def press(self, x=0.5, y=0.5, button=1):
        self.screen.press(*self.place(x, y), button=button)

    def drag(self, *places, **how):
        self.screen.drag(*(self.place(*place) for place in places), **how)

    def at(self, x=0.5, y=0.5):
        return self.screen.at(*self.place(x, y))

    def picture(self):
        return self.screen.picture(*self.client)

    def shot(self, name):
        """The whole window, frame and all, as a file of the session's folder."""
        left, top, right, bottom = self.look().frame
        self.screen.picture(max(left, 0), max(top, 0), right, bottom).save(
            os.path.join(self.session.folder, f"{name}-{self.session.dpi}dpi.png"))

    def wait_color(self, want, x=0.5, y=0.5, seconds=30):
        wait_for(lambda: self.at(x, y) == want,
                 lambda: f"{self.at(x, y)} at ({x}, {y}) of {self.id} is not {want}", seconds)

    def wait_text(self, want, seconds=30):
        wait_for(lambda: self.look().text == want, lambda: f"{self.text!r} is not {want!r}", seconds)

    def wait_focus(self, seconds=30):
        wait_for(self.has_focus, lambda: f"{self.id} has no focus", seconds)
