"""The drawer of textures, with a real pointer and real keys.

The scenarios' own textures are each of one grey, by which a cell tells what it shows.
"""
import struct
import zlib

from dialog_links import Offer, words
from dialog_pages import Page, expectations
from scenarios import equal, scenario
from screen import wait_for

UNTOUCHED = ["expect error -128", "expect untouched"]
SELECT, CANCEL, LIVE, LEFT, RIGHT, SETS, EFFECTS = 1, 2, 1443, 1004, 1003, 1110, 1111
# By tab: Choose, the text that names the choice, and the setting of the texture.
TEXTURE = {1: (1077, 1015, "WashFileName1"), 2: (1000, 1060, "SurfaceFileName1"),
           3: (1076, 1051, "BackgroundFileName")}
GET_ROW, IS_DOWN = 0x147, 0x157
IDLE, HOVERED, FRAMED = (84, 84, 84), (146, 146, 146), (255, 215, 108)
GREYS = {f"A{number:02}": 20 + 11 * number for number in range(20)}


def texture(grey, width=60, height=48, set_id=0, effects=0):
    """The bytes of a texture file: a header of 52 bytes, and the samples packed."""
    header = struct.pack("<4s3I4xIII", b"1kwt", width, height, 1, set_id, 0, effects)
    return header.ljust(52, b"\0") + zlib.compress(bytes([grey]) * (width * height))


def put_greys(run):
    """Twenty beside the tests' own. The system lists them by name."""
    run.textures = {f"{name}.twk": texture(grey) for name, grey in GREYS.items()}


class Drawer:
    """The one that is open, over the page with the button."""

    def __init__(self, page, button):
        self.page, self.dialog, self.screen, self.lists = page, page.dialog, page.screen, 0
        page.click(page[button])
        self.window = wait_for(self.find, "no drawer comes")
        left, top = self.dialog.window.client[:2]
        # It is there when it has come to its place, and all of its cells are.
        wait_for(lambda: self.window.look().frame[:2] == [left, top + 80],
                 lambda: f"the drawer stays at {self.window.frame}")
        self.away().look()

    def find(self):
        return next((one for one in self.dialog.window.children() if one.visible
                     and one.class_name == "DexDrawerClass" and one.id in (1177, 1178)), None)

    def look(self):
        children = self.window.look().children()
        self.cells = [one for one in children if one.class_name == "DexDrawerClass"
                      and one.id >= 100]
        self.items = {one.id: one for one in children if one.class_name != "DexDrawerClass"}
        return self

    def away(self):
        """The pointer, from whatever it lies on."""
        self.screen.move(*self.dialog[1002].place())
        return self

    def __getitem__(self, number):
        return self.items[number]

    def shown(self):
        """The middle of each thumbnail that is there."""
        return [one.at(61, 47) for one in self.cells if one.look().visible]

    def wait_greys(self, *greys):
        want = [(grey,) * 3 for grey in greys]

        def seen():
            # A crossed box comes first, whatever else.
            return self.shown()[1:len(want) + 1]
        wait_for(lambda: seen() == want, lambda: f"cells: {self.shown()}, not {want}")

    def wait_framed(self, *cells):
        def seen():
            return [index for index, one in enumerate(self.cells)
                    if one.look().visible and one.at(4, 40) == FRAMED]
        wait_for(lambda: seen() == list(cells), lambda: f"framed: {seen()}, not {cells}")

    def press(self, cell, times=1):
        self.page.click(self.cells[cell], times=times)

    def click(self, number):
        self.page.click(self[number])
        self.away()

    def choose_row(self, number, *keys):
        """By keys, once its list is down."""
        def wait_list(is_down):
            wait_for(lambda: self[number].send(IS_DOWN) == is_down,
                     f"{number}'s list does not move")
        # Each time elsewhere: two clicks at one place are a double click, which opens none.
        self.lists += 1
        self.page.click(self[number], 10 + 20 * (self.lists % 4))
        wait_list(1)
        self.screen.key(*keys, "Return")
        wait_list(0)
        self.away()

    def wait_row(self, number, row):
        wait_for(lambda: self[number].send(GET_ROW) == row,
                 lambda: f"row {self[number].send(GET_ROW)}, not {row}")

    def wait_gone(self):
        wait_for(lambda: not self.window.look().visible, "the drawer stays")
        wait_for(lambda: self.dialog[1].look().enabled, "the dialog stays busy")

    def leave(self, number):
        self.page.click(self[number])
        self.wait_gone()


def open_textures(dialog, tab):
    page = Page(dialog, tab)
    return Drawer(page, TEXTURE[tab][0])


def wait_settings(dialog, settings):
    dialog.wait_pane(dialog.window_at(0, 0, 1, *words(settings)))


@scenario()
def textures_are_tried_and_kept(run):
    """On each page: the last one that was pressed, without another press or by two."""
    put_greys(run)
    final = {"WashFileName1": "A01.twk", "SurfaceFileName1": "A02.twk",
             "BackgroundFileName": "A04.twk"}
    dialog = run.open(width=303, height=221, after=expectations({}) + [
        f"expect setting {name} {value}" for name, value in final.items()])
    known = {}
    for tab, (_, label, name) in TEXTURE.items():
        drawer = open_textures(dialog, tab)
        equal((drawer.window.size, drawer[SELECT].tips(), drawer[CANCEL].tips(),
               drawer[LIVE].tips(), drawer[SETS].tips(), drawer[EFFECTS].tips()),
              ((dialog[1002].frame[0] - dialog.window.client[0] - 9,
                dialog.window.size[1] - 89),
               ["Select and apply this effect"], ["Close effect picker and return to plug-in"],
               ["Preview all effects on current image in picker"],
               ["Filter all texture effects by texture set or status"],
               ["Filter all texture effects by style or effect"]))
        # The page of what is set now is another one.
        drawer[LEFT].click()
        while drawer[LEFT].look().visible:
            drawer[LEFT].click()
        drawer.away().wait_greys(*list(GREYS.values())[:8])
        for cell in (5, 1 + int(final[name][1:3])):
            drawer.press(cell)
            drawer.wait_framed(cell)
            known[name] = f"A{cell - 1:02}.twk"
            wait_settings(dialog, known)
        if tab == 2:
            drawer.press(3, times=2)
            drawer.wait_gone()
        else:
            drawer.leave(SELECT)
        drawer.page[label].wait_text(final[name][:-4])
        wait_settings(dialog, known)
    dialog.ok()


@scenario()
def all_else_is_busy(run):
    dialog = run.open(width=1400, height=1000, after=UNTOUCHED)
    drawer = open_textures(dialog, 1)
    numbers = [1, 2, 999, 1126, 1127, 1129, 1130, 500, 501, 503, 504, 514]
    free = [1001, 1002]
    equal([dialog[number].look().enabled for number in numbers], [False] * len(numbers))
    equal([dialog[number].look().enabled for number in free], [True] * len(free))
    equal(drawer.page.window.look().enabled, False)
    dialog.window.shot("drawer-textures")
    # Clicks on what is busy do nothing.
    for number in (1, 504):
        drawer.page.click(dialog[number])
    # The keys stay with the drawer, whether the button goes on being of use or not.
    steps = 0
    while dialog[1001].look().enabled:
        before = dialog[1003].look().text
        drawer.page.click(dialog[1001])
        wait_for(lambda: dialog[1003].look().text != before, "no step")
        drawer.window.wait_focus()
        steps += 1
    assert steps > 1, steps
    run.screen.key("Escape")
    drawer.wait_gone()
    equal([dialog[number].look().enabled for number in numbers], [True] * len(numbers))
    equal(drawer.page.window.look().enabled, True)
    # The keys are those of the page again: once more for the dialog.
    run.screen.key("Escape")
    run.finish()


@scenario()
def cancel_brings_back(run):
    """Also what a plain texture has turned off, and by Escape."""
    put_greys(run)
    settings = {"WashFileName1": "Ramp.twk", "WashInvert1": 1}
    dialog = run.open(width=303, height=221,
                      before=["settings WashFileName1 Ramp.twk WashInvert1 1"],
                      after=expectations({"WashInvert1": 1}) + [
                          "expect setting WashFileName1 Ramp.twk"])
    wait_settings(dialog, settings)
    for leave in ("button", "Escape"):
        drawer = open_textures(dialog, 1)
        while drawer[RIGHT].look().visible:
            drawer[RIGHT].click()
        drawer.away()
        # Ramp, Rusted, Scratched, Short, Solid, Tall and Wide are the last in the list.
        cells = [one for one in drawer.cells if one.look().visible]
        solid = len(cells) - 3
        drawer.press(solid)
        drawer.wait_framed(solid)
        # It is not inverted, whatever the settings say.
        wait_settings(dialog, {"WashFileName1": "Solid.twk", "WashInvert1": 0})
        # Left for another one, which is.
        drawer.press(solid - 1)
        wait_settings(dialog, {"WashFileName1": "Short.twk", "WashInvert1": 1})
        drawer.press(solid)
        wait_settings(dialog, {"WashFileName1": "Solid.twk", "WashInvert1": 0})
        if leave == "button":
            drawer.leave(CANCEL)
        else:
            run.screen.key(leave)
            drawer.wait_gone()
        drawer.page[1015].wait_text("Ramp")
        wait_settings(dialog, settings)
    dialog.ok()


@scenario()
def no_texture_turns_an_effect_off(run):
    """And back on when it is not kept."""
    dialog = run.open(width=303, height=221, after=["expect setting WashUse 0",
                                                    "expect setting WashFileName1 No_Texture.twk"])
    for kept in (CANCEL, SELECT):
        drawer = open_textures(dialog, 1)
        while drawer[LEFT].look().visible:
            drawer[LEFT].click()
        drawer.press(0)
        drawer.wait_framed(0)
        wait_settings(dialog, {"WashFileName1": "No_Texture.twk", "WashUse": 0})
        drawer.leave(kept)
        equal(drawer.page[1023].look().enabled, kept == CANCEL)
        if kept == CANCEL:
            wait_settings(dialog, {})
    dialog.ok()


@scenario()
def pages_and_filters(run):
    """The first record is there under each of them."""
    run.textures = {"Texture Sets.txt": b"70\tNails\n30\tBolts\n"}
    for number, (name, grey) in enumerate(GREYS.items()):
        run.textures[f"{name}.twk"] = texture(
            grey, set_id=30 if number % 4 == 0 else 70, effects=1 << 20 if number % 5 == 0 else 2)
    greys = list(GREYS.values())
    dialog = run.open(width=303, height=221, before=["settings WashFileName1 A12.twk"],
                      after=["expect error -128"])
    drawer = open_textures(dialog, 1)
    equal(len(drawer.cells), (dialog.window.size[1] - 89 - 150) // 110 * 3)
    count = len(drawer.cells)
    assert count == 9, count
    # Its place in the list is 13, which is the fifth of the second page.
    drawer.wait_framed(4)
    equal(drawer.shown(), [(grey,) * 3 for grey in greys[8:17]])
    equal([drawer[number].look().visible for number in (LEFT, RIGHT)], [True, True])
    drawer.click(LEFT)
    drawer.wait_greys(*greys[:8])
    wait_for(lambda: [drawer[number].look().visible for number in (LEFT, RIGHT)] ==
             [False, True], "the arrows are wrong on the first page")
    drawer.wait_framed()
    drawer.cells[2].move()
    wait_for(lambda: drawer.cells[2].at(3, 60) == HOVERED, "the cell does not follow")
    equal(drawer.cells[1].at(3, 60), IDLE)
    drawer.away()
    wait_for(lambda: drawer.cells[2].at(3, 60) == IDLE, "the cell does not let go")
    # The second set of the table, which stands below the two rows that are always there.
    drawer.choose_row(SETS, "Home", *["Down"] * 3)
    drawer.wait_greys(*greys[0::4])
    equal(len(drawer.shown()), 6)
    equal([drawer[number].look().visible for number in (LEFT, RIGHT)], [False, False])
    drawer.wait_framed(4)
    # The last effect, which only every fifth has.
    drawer.choose_row(EFFECTS, "Home", *["Down"] * 21)
    drawer.wait_greys(greys[0])
    equal(len(drawer.shown()), 2)
    drawer.choose_row(SETS, "Home")
    drawer.wait_greys(*greys[0::5])
    equal(len(drawer.shown()), 5)
    drawer.wait_framed()
    # The plain ones: No_Texture, and Solid.
    drawer.choose_row(SETS, "Home", *["Down"] * 1)
    wait_for(lambda: len(drawer.shown()) == 2, lambda: f"cells: {drawer.shown()}")
    drawer.choose_row(EFFECTS, "Home")
    drawer.choose_row(SETS, "Home", *["Down"] * 2)
    drawer.wait_greys(*[grey for number, grey in enumerate(greys) if number % 4][:8])
    dialog.window.shot("drawer-filtered")
    drawer.leave(CANCEL)
    # The next time it is as it was left, on the page of the texture: the tenth of its set.
    drawer = open_textures(dialog, 1)
    equal([drawer[number].send(GET_ROW) for number in (SETS, EFFECTS)], [2, 0])
    wait_for(lambda: len(drawer.shown()) == 9, lambda: f"cells: {drawer.shown()}")
    drawer.leave(CANCEL)
    dialog.cancel()


@scenario()
def by_keys_alone(run):
    put_greys(run)
    dialog = run.open(width=303, height=221, before=["settings WashFileName1 A00.twk"],
                      after=expectations({}) + ["expect setting WashFileName1 A10.twk"])
    page = Page(dialog, 1)
    page.focus(1077)
    run.screen.key("space")
    drawer = wait_for(lambda: next((one for one in dialog.window.children() if one.visible and
                                    one.class_name == "DexDrawerClass" and one.id == 1177), None),
                      "no drawer comes")
    drawer.wait_focus()
    run.screen.key("Right", "Down", "Left")  # on 4
    wait_settings(dialog, {"WashFileName1": "A03.twk"})
    run.screen.key("Down", "Down")  # on 10, of the second page
    wait_settings(dialog, {"WashFileName1": "A09.twk"})
    run.screen.key("Up", "Prior", "Next", "Down", "Right")  # back and here again, then 11
    wait_settings(dialog, {"WashFileName1": "A10.twk"})
    run.screen.key("Return")
    wait_for(lambda: not drawer.look().visible, "the drawer stays")
    page[1015].wait_text("A10")
    page[1077].wait_focus()
    # And back: nothing was changed the second time.
    run.screen.key("space")
    wait_for(lambda: drawer.look().visible, "no drawer comes again")
    run.screen.key("Right", "Tab")
    sets = next(one for one in drawer.children() if one.id == SETS)
    sets.wait_focus()
    for key in (13, 27):  # nothing else is to answer these
        assert sets.send(0x87, key) & 4, key
    run.screen.key("Escape")
    wait_for(lambda: not drawer.look().visible, "the drawer stays")
    page[1077].wait_focus()
    wait_settings(dialog, {"WashFileName1": "A10.twk"})
    dialog.ok()


@scenario()
def it_grows_with_the_window(run):
    put_greys(run)
    greys = list(GREYS.values())
    run.put("TarnwickStudio.ini", b"tfeL 20\n")
    dialog = run.open(width=303, height=221, before=["settings WashFileName1 A09.twk"],
                      after=["expect error -128"])
    drawer = open_textures(dialog, 1)
    drawer.wait_framed(1)
    left, top, right, bottom = dialog.window.frame
    dialog.drag_frame((left + 300, bottom - 2), (left + 300, bottom + 218),
                      [left, top, right, bottom + 220])
    dialog.look()
    wait_for(lambda: len(drawer.look().cells) == 15, lambda: f"{len(drawer.cells)} cells")
    equal(drawer.window.size[1], dialog.window.size[1] - 89)
    # The page of this number stays: it begins with the 16th now.
    wait_for(lambda: drawer.shown()[:6] == [(grey,) * 3 for grey in greys[14:20]],
             lambda: f"cells: {drawer.shown()}")
    bottoms = [drawer[one].look().frame[1] - drawer.window.frame[1]
               for one in (SELECT, CANCEL, LIVE)]
    equal(bottoms, [drawer.window.size[1] - 57] * 3)
    drawer.away()
    dialog.window.shot("drawer-grown")
    drawer.click(LEFT)
    drawer.wait_framed(10)
    drawer.leave(CANCEL)
    dialog.cancel()


@scenario()
def an_equal_texture_is_offered_to_be_linked(run):
    """It is shown at once, and the keys belong to the dialog after that."""
    dialog = run.open(width=303, height=221, before=["settings SurfaceFlipHor1 1"],
                      after=["expect error -128"])
    drawer = open_textures(dialog, 1)
    names = ["Battleship", "Colour", "Damaged", "Dot", "Fiberglass", "General_Store"]
    while drawer[LEFT].look().visible:
        drawer[LEFT].click()
    drawer.press(1 + names.index("Battleship"))
    drawer.wait_framed(1)
    drawer.page.click(drawer[SELECT])
    offer = Offer(dialog)
    equal(offer.shown(), ([0, 1], [1]))
    wait_for(lambda: not drawer.window.look().visible, "the drawer stays behind the offer")
    offer.answer("Yes")
    wait_for(lambda: drawer.page[2000].look().checked, "it is not linked")
    drawer.wait_gone()
    wait_settings(dialog, {"WashFileName1": "Battleship.twk", "WashFlipHor1": 1,
                           "SurfaceFlipHor1": 1})
    run.screen.key("Escape")
    run.finish()
