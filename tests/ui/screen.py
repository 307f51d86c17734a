"""An X display in memory, with the pointer and the keys of a user.

The picture is read from the memory that the server shows it in, so that looking
again costs nothing; the server draws no pointer into it. Pointer and keys come in
through XTEST, by xdotool: programs cannot tell them from a hand's.
"""
import mmap
import os
import shutil
import struct
import subprocess
import tempfile
import time

from picture import Picture


class Timeout(Exception):
    """What was waited for did not come."""


def wait_for(condition, what, seconds=30):
    """The first true value of condition(), asked again and again: at first often, so that
    nothing short is missed, then less, which leaves the machine to the windows."""
    deadline = time.monotonic() + seconds
    pause = 0.01
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Timeout(what if isinstance(what, str) else what())
        time.sleep(pause)
        pause = min(pause * 1.2, 0.05)


class Screen:
    def __init__(self, width=1700, height=1100):
        self._folder = tempfile.mkdtemp(prefix="tarnwick-screen-")
        read, write = os.pipe()
        # It goes with this process, whatever becomes of it.
        self._server = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", "Xvfb", "-displayfd", str(write), "-screen", "0",
             f"{width}x{height}x24", "-fbdir", self._folder, "-nocursor", "-noreset", "-nolisten",
             "tcp"], pass_fds=(write,), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        if not number:
            raise Timeout("Xvfb does not start")
        self.display = ":" + number
        self._environment = dict(os.environ, DISPLAY=self.display)
        self._file = open(os.path.join(self._folder, "Xvfb_screen0"), "rb")
        self._memory = mmap.mmap(self._file.fileno(), 0, access=mmap.ACCESS_READ)
        words = struct.unpack(">25I", self._memory[:100])
        self.width, self.height, self._row = words[4], words[5], words[12]
        assert words[11] == 32, "four bytes a pixel"
        # Behind the header, the display's name and its colours of 12 bytes.
        self._start = words[0] + words[19] * 12

    def close(self):
        self._memory.close()
        self._file.close()
        self._server.kill()
        self._server.wait()
        shutil.rmtree(self._folder, ignore_errors=True)

    # What is seen

    def picture(self, left=0, top=0, right=None, bottom=None):
        right, bottom = right or self.width, bottom or self.height
        rows = []
        for y in range(top, bottom):
            place = self._start + y * self._row
            rows.append(self._memory[place + left * 4:place + right * 4])
        return Picture(right - left, bottom - top, b"".join(rows))

    def at(self, x, y):
        place = self._start + y * self._row + x * 4
        blue, green, red = self._memory[place:place + 3]
        return red, green, blue

    # What a user does

    def do(self, *words):
        """xdotool's commands, in one go."""
        subprocess.run(["xdotool", *map(str, words)], env=self._environment, check=True,
                       stdin=subprocess.DEVNULL, timeout=60)

    def focused(self):
        """The title of the window that gets the keys."""
        words = ["xdotool", "getwindowfocus", "getwindowname"]
        return subprocess.run(words, env=self._environment, capture_output=True, text=True,
                              timeout=60).stdout.strip()

    def move(self, x, y):
        self.do("mousemove", "--", x, y)

    def press(self, x, y, button=1):
        self.do("mousemove", "--", x, y, "mousedown", button)

    def release(self, button=1):
        self.do("mouseup", button)

    def click(self, x, y, button=1, times=1):
        self.do("mousemove", "--", x, y, *(["mousedown", button, "mouseup", button] * times))

    def drag(self, *places, button=1, lets_go=True):
        """Along the places, with a few stops between two of them, as a hand moves."""
        words = ["mousemove", "--", *places[0], "mousedown", button]
        for (x0, y0), (x1, y1) in zip(places, places[1:]):
            for part in (1, 2, 3, 4):
                words += ["mousemove", "--", x0 + (x1 - x0) * part // 4, y0 + (y1 - y0) * part // 4]
        self.do(*words, *(["mouseup", button] if lets_go else []))

    def scroll(self, x, y, notches):
        """Up, or down if negative."""
        self.do("mousemove", "--", x, y, *(["click", 4 if notches > 0 else 5] * abs(notches)))

    def key(self, *names):
        """X's names of keys: "Return", "ctrl+KP_Add"."""
        self.do("key", "--delay", 0, *names)

    def type(self, text):
        self.do("type", "--delay", 0, "--", text)
