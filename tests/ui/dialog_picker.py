"""The full-size picker of textures, by a double click on a texture's name.

The scenarios' own textures are each of one grey, by which a cell tells what it shows.
"""
from dialog_drawers import CANCEL as DRAWER_CANCEL, LEFT, LIVE as DRAWER_LIVE, TEXTURE, \
    open_textures, texture
from dialog_help import Help
from dialog_links import words
from dialog_pages import Page, expectations
from scenarios import equal, scenario
from screen import wait_for

UNTOUCHED = ["expect error -128", "expect untouched"]
SELECT, DETAIL, CANCEL, LIVE, SETS, EFFECTS = 998, 1000, 2, 1005, 1110, 1111
FIRST, LAST, NEXT, PREVIOUS, NUMBERS = 100, 101, 102, 103, 200
BIG_NEXT, BIG_PREVIOUS = 1003, 1004
RED = (255, 0, 0)
# Twelve textures of two sets, with two effects: "Animal Patterns" and "Woods".
FEW = {f"A{number:02}": (10 + 20 * number, 7 if number % 2 else 8, 2 if number % 3 else 1 << 20)
       for number in range(12)}


def put_few(run):
    run.textures = {f"{name}.twk": texture(grey, set_id=one, effects=effects)
                    for name, (grey, one, effects) in FEW.items()}
    run.textures["Texture Sets.txt"] = b"7\tOdd ones\n8\tEven ones\n9\tNothing\n"


class Picker:
    def __init__(self, dialog, tab=1):
        self.dialog, self.screen, self.presses = dialog, dialog.screen, 0
        self.page = Page(dialog, tab)
        self.page.click(self.page[TEXTURE[tab][1]], 10, 5, times=2)
        self.window = dialog.program.window("Effect Picker")
        self.look()
        self.grid.wait_focus()
        self.away()

    def look(self):
        children = self.window.look().children()
        self.grid = next(one for one in children if one.id == 33)
        self.cells = [one for one in self.grid.children() if one.class_name == "Picker Class"]
        self.strip = next(one for one in children
                          if one.class_name == "Picker Class" and one.id == 1000)
        inner = {one.number for box in (self.grid, self.strip) for one in box.children()}
        self.items = {one.id: one for one in children if one.number not in inner}
        return self

    def __getitem__(self, number):
        return self.items[number]

    def away(self):
        """To where no tip and no button is."""
        left, top, right, _ = self.window.client
        self.screen.move((left + right) // 2, top + 4)
        wait_for(lambda: not any(one.visible for one in self.dialog.program.windows()
                                 if one.class_name == "tooltips_class32"), "a tip stays")
        return self

    def click(self, item):
        self.away()
        item.click()
        self.away()

    def button(self, cell, number):
        return next(one for one in self.cells[cell].children() if one.id == number)

    def labels(self):
        """The page numbers that are there, and the places of their left edges."""
        return [(one.id - NUMBERS + 1, one.frame[0] - self.strip.client[0])
                for one in self.strip.children() if one.id >= NUMBERS]

    def end(self, number):
        return next(one for one in self.strip.children() if one.id == number)

    def click_page(self, page):
        self.click(next(one for one in self.strip.children() if one.id == NUMBERS + page - 1))

    def shown(self):
        """The middle of each thumbnail that is there."""
        return [one.at(80, 50) for one in self.cells if one.look().visible]

    def wait_greys(self, *greys):
        want = [(grey,) * 3 for grey in greys]
        wait_for(lambda: self.shown() == want, lambda: f"cells: {self.shown()}, not {want}")

    def wait_rest(self, *numbers):
        """Of the few, after a first one that shows whatever."""
        want = [(FEW[f"A{number:02}"][0],) * 3 for number in numbers]
        wait_for(lambda: self.shown()[1:] == want, lambda: f"cells: {self.shown()}, not {want}")

    def wait_framed(self, *cells):
        def seen():
            return [index for index, one in enumerate(self.cells)
                    if one.look().visible and one.at(5, 40) == RED]
        wait_for(lambda: seen() == list(cells), lambda: f"framed: {seen()}, not {cells}")

    def choose_row(self, number, *keys):
        """By keys, once its list is down."""
        self.away()
        # Elsewhere on it than before: two presses on one place would be a double click.
        self.presses += 1
        self[number].click(20 + 15 * (self.presses % 4))
        self[number].wait_focus()
        self.away()
        self.screen.key(*keys, "Return")
        self.grid.wait_focus()

    def set_live(self, is_on):
        if bool(self[LIVE].look().checked) != is_on:
            self.click(self[LIVE])
            wait_for(lambda: bool(self[LIVE].look().checked) == is_on, "the box stays")

    def detail(self, cell):
        """The window of one texture, once it has its picture."""
        self.click(self.button(cell, DETAIL))
        return wait_for(lambda: next(
            (one for one in self.dialog.program.windows() if one.class_name == "#32770" and
             one.visible and one.enabled and not one.text), None), "no details come")

    def wait_gone(self):
        wait_for(self.window.gone, "the picker stays")
        wait_for(lambda: self.dialog.window.look().enabled, "the dialog stays disabled")


@scenario(96, 144)
def it_opens_over_the_dialog(run):
    """Tidy, and goes without a trace, by Escape and by its button."""
    put_few(run)
    dialog = run.open(width=303, height=221, after=UNTOUCHED)
    for tab in (1, 3) if run.session.dpi == 96 else (1,):
        picker = Picker(dialog, tab)
        equal(dialog.window.look().enabled, False)
        left, top, right, bottom = picker.window.client
        shown = [one for one in picker.items.values() if one.visible]
        for index, one in enumerate(shown):
            assert one.frame[0] >= left and one.frame[1] >= top and one.frame[2] <= right \
                and one.frame[3] <= bottom, f"{one.id} at {one.frame} is cut"
            for other in shown[index + 1:]:
                assert one.frame[0] >= other.frame[2] or other.frame[0] >= one.frame[2] \
                    or one.frame[1] >= other.frame[3] or other.frame[1] >= one.frame[3], \
                    f"{one.id} at {one.frame} lies on {other.id} at {other.frame}"
        if tab == 1:
            equal({number: picker[number].tips() for number in (CANCEL, LIVE, SETS, EFFECTS)},
                  {CANCEL: ["Close texture effect picker and return to plug-in"],
                   LIVE: ["Preview all texture effects on current image"],
                   SETS: ["Filter all texture effects by texture set or status"],
                   EFFECTS: ["all texture effects by style or effect"]})
            equal([picker.button(0, SELECT).tips(), picker.button(0, DETAIL).tips()],
                  [["Select and apply this texture"],
                   ["View detailed preview of this texture effect applied"]])
            picker.window.shot("picker-few")
            run.screen.key("Escape")
        else:
            picker.click(picker[CANCEL])
        picker.wait_gone()
    dialog.cancel()


@scenario()
def a_texture_is_chosen(run):
    """By its button, or by keys; it is put in as a drawer does."""
    put_few(run)
    final = {"WashFileName1": "A03.twk", "BackgroundFileName": "A10.twk"}
    dialog = run.open(width=303, height=221, after=expectations({}) + [
        f"expect setting {name} {value}" for name, value in final.items()])
    picker = Picker(dialog)
    # "No texture" has changed places with the first one.
    run.screen.key("Home")
    picker.wait_rest(1, 2, 3, 4, 5, 6, 7)
    picker.click(picker.cells[3])  # does nothing
    picker.click(picker.button(3, SELECT))
    picker.wait_gone()
    dialog.wait_pane(dialog.window_at(0, 0, 1, *words({"WashFileName1": "A03.twk"})))
    equal(picker.page[TEXTURE[1][1]].look().text, "A03")
    picker = Picker(dialog)
    picker.wait_framed(3)
    run.screen.key("Left", "Escape")
    picker.wait_gone()

    picker = Picker(dialog, 3)
    picker.choose_row(SETS, "Down")  # the odd ones, and none of them is in use
    picker.wait_greys(*[FEW[f"A{number:02}"][0] for number in (1, 3, 5, 7, 9, 11)])
    picker.choose_row(SETS, "Down")
    # The first one stands where "no texture" has been.
    picker.wait_greys(*[FEW[f"A{number:02}"][0] for number in (2, 4, 6, 8, 10, 0)])
    run.screen.key("Right")
    picker.wait_framed(0)
    run.screen.key("Down")
    picker.wait_framed(4)
    run.screen.key("Down")
    picker.wait_framed(4)
    run.screen.key("Return")
    picker.wait_gone()
    dialog.wait_pane(dialog.window_at(0, 0, 1, *words(final)))
    equal(picker.page[TEXTURE[3][1]].look().text, "A10")
    dialog.ok()


@scenario()
def filters_leave_some_or_none(run):
    put_few(run)
    dialog = run.open(width=303, height=221, after=UNTOUCHED)
    picker = Picker(dialog)
    picker.choose_row(EFFECTS, "End")  # woods: 0, 3, 6, 9
    picker.wait_greys(*[FEW[f"A{number:02}"][0] for number in (3, 6, 9, 0)])
    equal([number for number, _ in picker.labels()], [1])
    picker.choose_row(SETS, "Down")
    picker.wait_greys(*[FEW[f"A{number:02}"][0] for number in (3, 9)])
    picker.choose_row(SETS, "End")
    picker.wait_greys()
    equal(picker.labels(), [])
    picker.window.shot("picker-empty")
    equal([picker[BIG_NEXT].look().visible, picker[BIG_PREVIOUS].look().visible], [False, False])
    # Nothing comes of these.
    run.screen.key("Right", "Next", "End", "Return")
    picker.wait_gone()
    dialog.cancel()


@scenario()
def the_strip_leads_to_every_page(run):
    """Of 27: with 200 more textures than the tests' own fifteen."""
    run.textures = {f"B{number:03}.twk": texture(20 + number) for number in range(200)}
    dialog = run.open(width=303, height=221, after=UNTOUCHED)
    picker = Picker(dialog)
    run.screen.key("Home")

    def page(number):
        """Its first texture, and what stands in the strip."""
        want = (20 + 8 * (number - 1),) * 3
        wait_for(lambda: number == 1 or picker.shown()[0] == want,
                 lambda: f"{picker.shown()[0]}, not {want} on page {number}")
        near_end = number < 13 or number > 15
        pages = [*range(1, 14), *range(15, 28)] if near_end else \
            [*range(1, 6), *range(number - 6, number + 5), *range(23, 28)]
        wait_for(lambda: [one for one, _ in picker.labels()] == pages,
                 lambda: f"{picker.labels()} on page {number}")
        equal([picker.end(one).look().enabled for one in (FIRST, PREVIOUS, LAST, NEXT)],
              [number > 1] * 2 + [number < 27] * 2)
        equal([picker[BIG_PREVIOUS].look().visible, picker[BIG_NEXT].look().visible],
              [number > 1, number < 27])
    page(1)
    width = picker.strip.size[0]
    equal(picker.labels(), [(number, 104 + 9 * (number - 1) + 7 * max(number - 10, 0))
                            for number in range(1, 14)] +
          [(number, width - 104 - 16 * (28 - number)) for number in range(15, 28)])
    picker.click(picker.end(NEXT))
    page(2)
    picker.click_page(13)
    page(13)
    picker.window.shot("picker-strip")
    picker.click(picker[BIG_NEXT])
    page(14)
    run.screen.scroll(*picker.cells[5].place(0.5, 0.9), -1)
    page(15)
    picker.click(picker.end(PREVIOUS))
    page(14)
    picker.click(picker[BIG_PREVIOUS])
    page(13)
    run.screen.key("Prior")
    page(12)
    picker.click(picker.end(LAST))
    wait_for(lambda: not picker.end(LAST).look().enabled, "the last page does not come")
    equal(len(picker.shown()), 7)  # of 215
    picker.click(picker.end(FIRST))
    page(1)
    picker.click(picker[CANCEL])
    picker.wait_gone()
    dialog.cancel()


@scenario()
def a_live_preview_and_its_details(run):
    """What is looked at is seen in the window, and the pane is as before."""
    put_few(run)
    dialog = run.open(width=603, height=421, after=UNTOUCHED)
    before = dialog.window_at(0, 0)
    dialog.wait_pane(before)
    picker = Picker(dialog)
    picker.set_live(False)
    run.screen.key("Home")
    picker.wait_rest(1, 2, 3, 4, 5, 6, 7)

    detail = picker.detail(3)
    detail.wait_color((FEW["A03"][0],) * 3)
    detail.shot("detail-grey")
    run.screen.key("Escape")
    wait_for(detail.gone, "the details stay")

    picker.set_live(True)
    wait_for(lambda: picker.cells[3].at(80, 50) != (FEW["A03"][0],) * 3, "the cell stays grey")
    picker.window.shot("picker-live")
    detail = picker.detail(3)
    width, height = detail.size[0] - 40, detail.size[1] - 80
    whole = dialog.window_at(0, 0, 1, *words({"WashFileName1": "A03.twk"}))
    left, top = (whole.width - width) // 2, (whole.height - height) // 2
    want = whole.crop(left, top, left + width, top + height)
    wait_for(lambda: detail.picture().crop(20, 20, 20 + width, 20 + height).rgb() == want.rgb(),
             "the details show something else")
    detail.shot("detail-live")
    # The pointer takes it along, from its picture or from its rim.
    for start, way in (((60, 70), (90, 40)), ((100, 10), (-130, -60))):
        place = detail.look().frame
        detail.drag(start, (start[0] + way[0], start[1] + way[1]))
        moved = [place[0] + way[0], place[1] + way[1], place[2] + way[0], place[3] + way[1]]
        wait_for(lambda: detail.look().frame == moved,
                 lambda: f"the details are at {detail.frame}, not {moved}")
    equal([one.tips() for one in sorted(detail.children(), key=lambda one: one.id)],
          [["Select and apply this texture"], ["Close window"], ["Close window"]])
    next(one for one in detail.children() if one.id == 997).click()
    wait_for(detail.gone, "the details stay")
    picker.set_live(False)
    picker.click(picker[CANCEL])
    picker.wait_gone()
    dialog.wait_pane(before)
    # Rendered anew, too.
    Page(dialog, 2)
    dialog.wait_pane(before)
    dialog.cancel()


@scenario()
def a_relief_is_as_deep_as_the_other_surface(run):
    """Odd, and kept: where that has no depth all textures look alike. Not in the drawer."""
    dialog = run.open(width=303, height=221, after=UNTOUCHED,
                      before=["settings SurfaceDepth1 100 SurfaceDepth2 0"])
    picker = Picker(dialog, 2)
    run.screen.key("Home")
    picker.set_live(True)

    def pictures(cells):
        return {one.picture().crop(12, 12, 72, 52).rgb() for one in cells}
    shown = picker.cells[3:6]  # Dot, Fiberglass, General_Store
    wait_for(lambda: len(pictures(shown)) == 1, "textures differ")
    assert len(shown[0].picture().crop(12, 12, 72, 52).colors()) > 1, "there is no picture"
    picker.set_live(False)
    wait_for(lambda: len(pictures(shown)) == 3, "textures do not differ")
    picker.click(picker[CANCEL])
    picker.wait_gone()
    drawer = open_textures(dialog, 2)
    while drawer[LEFT].look().visible:
        drawer[LEFT].click()
    greys = pictures(drawer.cells[4:7])
    drawer.click(DRAWER_LIVE)
    wait_for(lambda: not pictures(drawer.cells[4:7]) & greys, "the drawer's cells stay grey")
    wait_for(lambda: len(pictures(drawer.cells[4:7])) == 3, "textures do not differ in the drawer")
    drawer.leave(DRAWER_CANCEL)
    dialog.cancel()


@scenario()
def a_texture_is_chosen_in_its_details(run):
    put_few(run)
    final = {"SurfaceFileName1": "A02.twk"}
    dialog = run.open(width=303, height=221, after=expectations({}) + [
        "expect setting SurfaceFileName1 A02.twk"])
    picker = Picker(dialog, 2)
    run.screen.key("Home")
    picker.wait_rest(1, 2, 3, 4, 5, 6, 7)
    detail = picker.detail(2)
    next(one for one in detail.children() if one.id == 1).click()
    wait_for(detail.gone, "the details stay")
    picker.wait_gone()
    dialog.wait_pane(dialog.window_at(0, 0, 1, *words(final)))
    # The drawer has its own cells again.
    equal(picker.page[TEXTURE[2][1]].look().text, "A02")
    dialog.ok()


@scenario()
def f1_opens_the_page_of_the_picker(run):
    put_few(run)
    dialog = run.open(width=303, height=221, after=UNTOUCHED)
    pages = Help(run)
    picker = Picker(dialog)
    pages.ask(lambda: run.screen.key("F1"), "texture_picker.html")
    run.screen.key("Escape")
    picker.wait_gone()
    dialog.cancel()
