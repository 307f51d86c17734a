"""The module's dialog in our test host, with a user before it.

A run has a folder of its own: the module lies in it with its data folder, the ini
file and what the host has saved. What the host is to expect after the dialog is
written before it opens; its exit code then tells.
"""
import os
import shutil

from picture import assert_same, from_rgb, read_pnm
from scenarios import equal
from screen import wait_for
from windows import Program

KEYPAD_PLUS, KEYPAD_MINUS = "ctrl+KP_Add", "ctrl+KP_Subtract"


def pattern(width, height):
    """A picture with edges, ramps and fine detail, as a P6 file's bytes."""
    rows = []
    for y in range(height):
        row = bytearray(width * 3)
        row[0::3] = bytes((x * 255 // width ^ (y >> 3 & 31)) & 255 for x in range(width))
        row[1::3] = bytes((x + 2 * y) // 5 % 256 for x in range(width))
        row[2::3] = bytes((x * y >> 7) & 255 for x in range(width))
        rows.append(bytes(row))
    return b"P6\n%d %d\n255\n" % (width, height) + b"".join(rows)


def ramp(width, height):
    """An alpha plane from clear on the left to opaque, as a P5 file's bytes."""
    row = bytes(min(255, x * 300 // width) for x in range(width))
    return b"P5\n%d %d\n255\n" % (width, height) + row * height


class HostRun:
    """Of one scenario; the dialog opens with open()."""

    def __init__(self, session, arguments, name):
        self.session, self.screen, self.name = session, session.screen, name
        self.arguments = arguments
        self.folder = os.path.join(session.folder, f"{name}-{session.dpi}dpi")
        shutil.rmtree(self.folder, ignore_errors=True)
        os.makedirs(self.folder)
        self.program = None
        # Files of the module's folder of presets by their names in it, for open().
        self.presets = {}
        # The same for the folder of textures; None takes all out of it.
        self.textures = {}

    def file(self, name):
        return os.path.join(self.folder, name)

    def texture(self, name):
        return self.file(os.path.join("Tarnwick Studio", name))

    def preset(self, name):
        return self.file(os.path.join("Tarnwick Studio", "Presets", name))

    def put(self, name, data):
        with open(self.file(name), "wb") as file:
            file.write(data)
        return self.file(name)

    def open(self, width=1400, height=1000, planes=3, before=(), after=(), mode="rgb",
             picture=None):
        """Runs the filter on a picture of this size; the dialog, once it is there."""
        lines = [*before, "dialog by-hand", "run", *after]
        if mode == "rgb":
            lines.append('save layer "Layer 1" to result.pam')
        self.start(width, height, planes, lines, mode, picture)
        return Dialog(self)

    def start(self, width=1400, height=1000, planes=3, lines=(), mode="rgb", picture=None):
        """With a pattern where no picture is given, which is a P6 file's bytes."""
        self.width, self.height = width, height
        # What an earlier run has left; not the ini file.
        shutil.rmtree(self.file("Tarnwick Studio"), ignore_errors=True)
        if os.path.exists(self.file("TarnikStudi.8bf")):
            os.remove(self.file("TarnikStudi.8bf"))
        self.picture = self.put("picture.ppm", picture or pattern(width, height))
        alpha = ""
        if planes > 3:
            alpha = " alpha " + self.put("alpha.pgm", ramp(width, height))
        lines = [f'scenario "{self.name}"',
                 f"document {mode} {width}x{height} planes {planes} from {self.picture}{alpha}",
                 *lines]
        scenario = self.put("run.scn", "\n".join(lines + [""]).encode())
        self.program = self.session.start(
            self.arguments.host, "--data", self.data(), "--lists",
            self.arguments.lists, "--module", self.arguments.module, "--keep", self.folder,
            scenario)

    def data(self):
        """The folder from which the host takes what lies beside the module."""
        if not self.presets and self.textures == {}:
            return self.arguments.data
        folder = self.file("data")
        shutil.rmtree(folder, ignore_errors=True)
        textures = os.path.join("golden", "textures")
        if self.textures is None:
            os.makedirs(os.path.join(folder, textures))
        else:
            shutil.copytree(os.path.join(self.arguments.data, textures),
                            os.path.join(folder, textures))
        for name, data in (self.textures or {}).items():
            self.put(os.path.join(folder, textures, name), data)
        for name, data in self.presets.items():
            path = os.path.join(folder, textures, "Presets", name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            self.put(path, data)
        return folder

    def finish(self):
        """The host has gone on, and found what it was to expect."""
        code = self.program.wait()
        assert code == 0, self.program.printed()

    def close(self):
        if self.program is not None and self.program.alive():
            self.program.end()

    def ini(self):
        """The ini file's values by their keys."""
        with open(self.file("TarnwickStudio.ini")) as file:
            lines = [line.split(";")[0].split() for line in file]
        return {words[0]: int(words[1]) for words in lines if len(words) == 2}

    def result(self):
        """The layer after the run: its colours."""
        with open(self.file("result.pam"), "rb") as file:
            header, _, samples = file.read().partition(b"ENDHDR\n")
        planes = int(header.split(b"DEPTH ")[1].split()[0])
        assert planes == 3, "only colours are read"
        return from_rgb(self.width, self.height, samples)

    def aged(self, *settings, scale=1, window=(0, 0, 0, 0), picture=None):
        """The picture, or another one, rendered anew with the same textures, without a dialog."""
        out = self.file("aged.ppm")
        program = self.session.start(self.arguments.fresh_view, self.file("Tarnwick Studio"),
                                     picture or self.picture, out, scale, *window, *settings)
        equal(program.wait(), 0)
        return read_pnm(out)


class Dialog:
    def __init__(self, run, others=()):
        """The keys go to it, or to one of the others' windows, by their titles."""
        self.run, self.screen, self.program = run, run.screen, run.program
        self.window = self.program.window("Tarnwick Studio")
        self.tab_places = {}
        wait_for(lambda: self.screen.focused() in ("Tarnwick Studio", *others),
                 lambda: f"the keys go to {self.screen.focused()!r}")
        self.look()

    def look(self):
        children = self.window.look().children()
        self.items = {child.id: child for child in children}
        # Numbers come again on pages and in drawers: the dialog's own are meant.
        boxes = [child for child in children if child.class_name in ("#32770", "DexDrawerClass")]
        inner = {child.number for box in boxes for child in box.children()}
        self.items.update({child.id: child for child in children if child.number not in inner})
        return self

    def __getitem__(self, number):
        return self.items[number]

    def shown(self, number):
        return self[number].look().visible

    def ok(self):
        self[1].click()
        self.run.finish()

    def cancel(self):
        self[2].click()
        self.run.finish()

    def tab(self, index):
        """Brings up a page by a click on its tab."""
        tabs = self[999]
        captions = tabs.session.ask("tabs", tabs.number)
        # Tabs are as wide as their captions; the clicks go along them, but begin with
        # the place that was found. More than once: a tip may lie on it and take a press.
        known = [self.tab_places[index]] * 3 if index in self.tab_places else []
        for x in known + list(range(10, tabs.size[0], 8)):
            if tabs.send(0x130B) == index:
                break
            self.screen.click(*tabs.place(x, 8))
            wait_for(lambda: tabs.send(0) == 0, "the tabs do not answer")
            self.tab_places.setdefault(tabs.send(0x130B), x)
        assert tabs.send(0x130B) == index, f"no tab {index} in {captions}"
        self.look()

    def wait_pane(self, want, seconds=60):
        """The picture in the pane is this one, in the middle of it."""
        left, top, right, bottom = self[1002].client

        def seen():
            return self.screen.picture(left + (right - left - want.width) // 2,
                                       top + (bottom - top - want.height) // 2,
                                       left + (right - left - want.width) // 2 + want.width,
                                       top + (bottom - top - want.height) // 2 + want.height)
        try:
            wait_for(lambda: seen().rgb() == want.rgb(), "", seconds)
        except Exception:
            assert_same(seen(), want)
            raise

    def window_at(self, x, y, scale=1, *settings):
        """What the pane has to show: a window of the aged picture, in shown pixels."""
        width, height = self[1002].size
        width = min(width, self.run.width // scale - x)
        height = min(height, self.run.height // scale - y)
        whole = self.run.aged(*settings, scale=scale, window=(x, y, width, height))
        return whole.crop(0, 0, width // 4 * 4, height)

    def drag_frame(self, begin, end, frame):
        """Held until the window follows: it takes the pointer's place when it gets to it."""
        self.screen.press(*begin)
        wait_for(lambda: self.run.session.ask("focus")["capture"] == self.window.number,
                 "the frame is not taken")
        self.screen.move(*end)
        self.wait_frame(frame)
        self.screen.release()

    def wait_frame(self, frame):
        wait_for(lambda: self.window.look().frame == frame,
                 lambda: f"the frame is {self.window.frame}, not {frame}")

    def wait_scale(self, percent):
        self[1003].wait_text(f"{percent}%")
