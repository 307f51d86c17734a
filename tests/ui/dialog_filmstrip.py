"""The strip of looks on the background page, with a real pointer."""
import os

from dialog_pages import Page, expectations
from scenarios import equal, scenario
from screen import wait_for

STRIP, BACK, FORWARD = 1157, 1004, 1003
CELL, TOP = 63, 31
BLACK, WHITE = (0, 0, 0), (255, 255, 255)
HEAD = "TarnwickStudi Press Preset;\nVersion 2;\n"

# Six looks of one texture; the first in the strip is the one that is called "none".
SHADOWS = {"Amber": 0x0000FF, "Birch": 0x00FF00, "Cobalt": 0xFF0000, "Dune": 0x00FFFF,
           "Elm": 0xFFFF00, "none": 0x808080}


def look(shadow, texture="Rusted.twk"):
    return (
        f"{HEAD}nOkB 1 \t;\nNFkB {texture} \t;\nlcSB 0 \t;\nvnIB 0 \t;\ntLHB 100 \t;\ntdMB 100 \t;\n"
        f"wdSB 100 \t;\neuHB 0 \t;\nlCHB {shadow} \t;\nlCMB {shadow} \t;\nlCSB {shadow} \t;\n"
    ).encode()


def put_looks(run, names=SHADOWS):
    for name in names:
        run.presets[f"BackPalette/{name}.twkpst"] = look(SHADOWS[name])


class Strip:
    def __init__(self, dialog):
        self.dialog, self.screen = dialog, dialog.screen
        self.page = Page(dialog, 3)
        self.window = self.page[STRIP]
        # Where the page is narrow the arrows give way.
        self.left = self.page[BACK].size[0]

    def place(self, cell, x=10):
        return self.left + CELL * cell + x, TOP

    def border(self, cell):
        """The colour of a cell's frame."""
        return self.window.at(self.left + CELL * cell, 0)

    def wait_frames(self, *hot):
        wait_for(lambda: [self.border(cell) for cell in range(5)] ==
                 [BLACK if cell in hot else WHITE for cell in range(5)],
                 lambda: f"frames: {[self.border(cell) for cell in range(5)]}")

    def picture(self):
        """The cells, without the arrows: one of them has a frame when it has the keys."""
        width, height = self.window.size
        return self.window.picture().crop(self.left, 0, width - self.left, height).rgb()

    def wait_arrows(self, *enabled):
        wait_for(lambda: tuple(self.page[one].look().enabled for one in (BACK, FORWARD)) ==
                 enabled, f"the arrows are not {enabled}")

    def click_arrow(self, arrow):
        self.page.click(self.page[arrow])


@scenario(96, 144)
def a_look_under_the_pointer_is_framed(run):
    put_looks(run)
    dialog = run.open(width=400, height=300, after=["expect error -128", "expect untouched"])
    strip = Strip(dialog)
    equal([strip.page[one].tips() for one in (STRIP, BACK, FORWARD)],
          [["Select and apply preset effect"], ["View previous preset effects"],
           ["View more preset effects"]])
    strip.wait_frames()
    for cell in (0, 3, 4):
        strip.window.move(*strip.place(cell))
        strip.wait_frames(cell)
    dialog.window.shot("filmstrip-hovered")
    strip.screen.move(*dialog[1002].place())
    strip.wait_frames()
    dialog.cancel()


@scenario(96, 144)
def a_click_applies_a_look(run):
    put_looks(run)
    dialog = run.open(width=400, height=300, after=expectations({}) + [
        f"expect setting Background{tone}Color {SHADOWS['Cobalt']}"
        for tone in ("Highlight", "Midtone", "Shadow")])
    strip = Strip(dialog)
    before = dialog[1002].picture().rgb()
    strip.page.click(strip.window, *strip.place(3))
    wait_for(lambda: dialog[1002].picture().rgb() != before, "the pane stays")
    dialog.wait_pane(dialog.window_at(0, 0, 1, *(
        f"Background{tone}Color={SHADOWS['Cobalt']}" for tone in ("Highlight", "Midtone",
                                                                  "Shadow"))))
    # The page's swatches follow.
    wait_for(lambda: strip.page[1047].at() == (0, 0, 255), "the swatch stays")
    dialog.ok()


@scenario()
def arrows_slide_to_the_sixth(run):
    put_looks(run)
    dialog = run.open(width=400, height=300, after=["expect error -128", "expect untouched"])
    strip = Strip(dialog)
    strip.wait_arrows(False, True)
    strip.wait_frames()
    first = strip.picture()
    strip.click_arrow(FORWARD)
    # Clicks during a slide do nothing.
    strip.window.click(*strip.place(2))
    strip.wait_arrows(True, False)
    strip.screen.move(*dialog[1002].place())
    face = strip.window.at(strip.left + CELL * 2, TOP)
    wait_for(lambda: strip.window.at(strip.left + 30, TOP) not in (face, WHITE) and
             strip.window.at(strip.left + CELL + 30, TOP) == face, "more than the sixth is there")
    dialog.window.shot("filmstrip-second-page")
    strip.click_arrow(BACK)
    strip.wait_arrows(False, True)
    strip.screen.move(*dialog[1002].place())
    wait_for(lambda: strip.picture() == first, "the first page is another one")
    dialog.cancel()


@scenario()
def the_second_page_is_applied(run):
    """And where no name is, a press does nothing."""
    put_looks(run)
    dialog = run.open(width=400, height=300, after=expectations({}) + [
        f"expect setting BackgroundShadowColor {SHADOWS['Elm']}"])
    strip = Strip(dialog)
    strip.click_arrow(FORWARD)
    strip.wait_arrows(True, False)
    strip.page.click(strip.window, *strip.place(0))
    wait_for(lambda: strip.page[1049].at() == (0, 255, 255), "the sixth is not applied")
    strip.page.click(strip.window, *strip.place(1))
    dialog.ok()


@scenario()
def pictures_are_kept_beside_the_looks(run):
    """And made anew where they are no pictures of a cell."""
    put_looks(run, ["Amber", "Birch"])
    run.presets["BackPalette/Amber.bmp"] = b"BM, but cut"
    run.presets["BackPalette/Crumb.twkpst"] = b"no preset at all\n"
    dialog = run.open(width=400, height=300, after=["expect error -128"])
    strip = Strip(dialog)
    strip.screen.move(*dialog[1002].place())
    wait_for(lambda: strip.window.at(*strip.place(3)) == WHITE, "what is no look has a picture")
    equal(strip.window.at(strip.left + CELL * 3 + 31, TOP), BLACK)
    for name, size in (("Amber", 54 + 61 * 184), ("Birch", 54 + 61 * 184)):
        equal(os.path.getsize(run.preset(f"BackPalette/{name}.bmp")), size)
    assert not os.path.exists(run.preset("BackPalette/Crumb.bmp"))
    strip.page.click(strip.window, *strip.place(3))
    dialog.window.shot("filmstrip-odd-looks")
    dialog.cancel()


@scenario()
def without_looks_it_is_empty(run):
    dialog = run.open(width=400, height=300, after=["expect error -128", "expect untouched"])
    strip = Strip(dialog)
    strip.wait_arrows(False, False)
    strip.page.click(strip.window, *strip.place(1))
    dialog.window.shot("filmstrip-empty")
    dialog.cancel()
