"""What the cells of the drawer of textures show, and where they have it from."""
import os
import struct

from dialog_drawers import CANCEL, IDLE, LEFT, LIVE, RIGHT, SELECT, TEXTURE, UNTOUCHED, Drawer, \
    open_textures, texture
from scenarios import equal, scenario
from screen import wait_for


def plain(width, height, color):
    return b"P6\n%d %d\n255\n" % (width, height) + bytes(color) * (width * height)


@scenario()
def cells_show_the_effect(run):
    """On a picture of one colour, where the cells can be worked out by hand."""
    # A fifth and four fifths of white.
    run.textures = {"A00.twk": texture(51), "A01.twk": texture(204)}
    dialog = run.open(
        width=303, height=221, picture=plain(303, 221, (200, 100, 50)),
        before=["settings WashFileName1 No_Texture.twk WashType1 1 SurfaceFileName1 No_Texture.twk "
                "BackgroundFileName No_Texture.twk"],
        after=["expect error -128", "expect untouched"])
    # A stain of black leaves a fifth and four fifths. A background is shadow and middle
    # below 0.65, and highlight and middle above.
    want = {1: [(40, 20, 10), (160, 80, 40)], 3: [(116, 36, 15), (197, 114, 28)]}
    for tab in (1, 2, 3):
        drawer = open_textures(dialog, tab)
        drawer.wait_greys(51, 204)
        drawer.click(LIVE)
        if tab in want:
            wait_for(lambda: all(abs(a - b) <= 1
                                 for cell, color in zip(drawer.shown()[1:], want[tab])
                                 for a, b in zip(cell, color)), lambda: f"cells: {drawer.shown()}")
        else:
            wait_for(lambda: (51,) * 3 not in drawer.shown()[1:3], "the cells stay grey")
        drawer.leave(CANCEL)
        # It stays on.
        drawer = Drawer(drawer.page, TEXTURE[tab][0])
        wait_for(lambda: (51,) * 3 not in drawer.shown()[1:3], "the cells are grey again")
        drawer.click(LIVE)
        drawer.wait_greys(51, 204)
        drawer.leave(CANCEL)
    dialog.cancel()


def thumbnail(grey):
    """A bitmap file of 112 x 84: two headers, then rows of 336 bytes."""
    size = 336 * 84
    return (struct.pack("<2sIHHI", b"BM", 54 + size, 0, 0, 54) +
            struct.pack("<IiiHHIIiiII", 40, 112, 84, 1, 24, 0, size, 0, 0, 0, 0) +
            bytes([grey]) * size)


@scenario(96, 144)
def thumbnails_are_kept_beside_the_textures(run):
    """And made anew where they are no pictures of a cell; a damaged texture has none."""
    run.textures = {"A00.twk": texture(60), "A01.twk": texture(90), "A02.twk": texture(120),
                    "A03.twk": texture(150), "A04.twk": b"no texture at all",
                    "A01.twk.bmp": thumbnail(33), "A02.twk.bmp": b"BM, but cut",
                    "A03.twk.bmp": thumbnail(44)[:18] + struct.pack("<ii", 56, 84)
                    + thumbnail(44)[26:]}
    dialog = run.open(width=303, height=221, after=UNTOUCHED)
    drawer = open_textures(dialog, 1)
    while drawer[LEFT].look().visible:
        drawer[LEFT].click()
    drawer.away().wait_greys(60, 33, 120, 150)
    # A box that is crossed: its lines meet in the middle.
    assert max(drawer.cells[5].at(61, 47)) > 84, drawer.cells[5].at(61, 47)
    equal(drawer.cells[5].at(61, 30), IDLE)
    for name, grey in (("A00", 60), ("A01", 33), ("A02", 120), ("A03", 150)):
        with open(run.texture(f"{name}.twk.bmp"), "rb") as file:
            data = file.read()
        equal((len(data), data[54:57]), (54 + 336 * 84, bytes([grey] * 3)))
    assert not os.path.exists(run.texture("A04.twk.bmp"))
    assert not os.path.exists(run.texture("No_Texture.twk.bmp"))
    dialog.window.shot("drawer-odd-textures")
    drawer.leave(CANCEL)
    dialog.cancel()


@scenario()
def without_textures_it_is_empty(run):
    run.textures = None
    dialog = run.open(width=303, height=221, before=[
        "settings WashFileName1 No_Texture.twk SurfaceFileName1 No_Texture.twk "
        "BackgroundFileName No_Texture.twk"], after=UNTOUCHED)
    drawer = open_textures(dialog, 1)
    equal(drawer.shown(), [])
    equal([drawer[number].look().visible for number in (LEFT, RIGHT)], [False, False])
    for number in (LIVE, SELECT):
        drawer.page.click(drawer[number])
    drawer.wait_gone()
    drawer = open_textures(dialog, 3)
    run.screen.key("Right", "Next", "Return")
    drawer.wait_gone()
    dialog.cancel()
