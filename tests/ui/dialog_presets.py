"""The lists of presets: what they show, what a click loads, Save, Delete, the first rows."""
import os

from dialog_pages import BOXES, CHOICES, DEFAULTS, GET_CHOICE, NUMBERS, Page
from dialog_strip import ONE, TWO, choose, is_selected, wait_row
from picture import read_pnm
from preset_files import HEAD, NONE, START, lines_of, preset, read_preset, text_of
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
GET_SELECTION, GET_TOP, ROW_HEIGHT = 0x188, 0x18E, 0x1A1
SETTINGS = {**DEFAULTS, **START}
BUILT_IN = ["Reset All", "Last Used Settings"]

# Tab, list, label of the folder, Save and Delete.
LISTS = {"Basic": (0, 1084, 1091, None, None), "User": (0, 1013, 1093, 1300, 1092),
         "Wash": (1, 1085, 1094, 1382, 1087), "Surface": (2, 1086, 1095, 1383, 1088),
         "Background": (3, 1012, 1096, 1045, 1046)}
TEXTURES = {1: (1015, "WashFileName1"), 2: (1060, "SurfaceFileName1"),
            3: (1051, "BackgroundFileName")}
SWATCHES = {1: {1130: "WashStainColor1"},
            2: {1073: "SurfaceHighlightColor", 1071: "SurfaceMidtoneColor",
                1072: "SurfaceShadowColor"},
            3: {1047: "BackgroundHighlightColor", 1048: "BackgroundMidtoneColor",
                1049: "BackgroundShadowColor"}}

WASH = {"WashFileName1": "Rusted.twk", "WashScale1": 40, "WashIntensity1": 150,
        "WashFlipVer1": 1, "WashAngle1": 90, "WashType1": 3, "WashStainColor1": 0xC04020,
        "WashCoverage1": 30, "WashCoverageScale1": 60, "WashEdgeDistance1": 5,
        "WashEdgeSoftness1": 20, "WashRandomize1": 77}
WASHES = {**WASH, "SecondWashExists": 1, "WashFileName2": "Fiberglass.twk", "WashType2": 2,
          "WashScale2": 20, "WashCoverage2": 60, "WashInvert2": 1}
SURFACE = {"SurfaceFileName1": "General_Store.twk", "SurfaceDepth1": 80, "SurfaceScale1": 15,
           "SurfaceType1": 4, "SurfaceInvert1": 1, "SurfaceBrightness": 120,
           "SurfaceContrast": 90, "SurfaceHue": -30, "SurfaceMidtone": 70,
           "SurfaceMidtoneColor": 0x3060A0, "SurfaceLightAlpha": 120.0, "SurfaceLightBeta": 45.0}
SURFACES = {**SURFACE, "SecondSurfaceExists": 1, "SurfaceFileName2": "Scratched.twk",
            "SurfaceDepth2": 30, "SurfaceFlipHor2": 1}
BACKGROUND = {"BackgroundFileName": "Fiberglass.twk", "BackgroundScale": 25,
              "BackgroundFlipHor": 1, "BackgroundAngle": 270, "BackgroundHue": 35,
              "BackgroundMidtone": 60, "BackgroundEnhancedMode": 1,
              "BackgroundHighlightColor": 0x20E0C0, "BackgroundShadowColor": 0x401080}


class Shelf:
    """A list of presets with what belongs to it, on a page that is up or comes up."""

    def __init__(self, dialog, kind, page=None):
        tab, number, label, save, delete = LISTS[kind]
        self.dialog, self.kind, self.tab = dialog, kind, tab
        self.page = page or Page(dialog, tab)
        self.list, self.label = self.page[number], self.page[label]
        self.save, self.delete = self.page.items.get(save), self.page.items.get(delete)

    def rows(self):
        return self.list.rows()

    def wait_rows(self, want, folder=""):
        wait_for(lambda: self.rows() == want, lambda: f"{self.kind} shows {self.rows()}")
        equal(self.label.look().text, folder)

    def click(self, text, times=1):
        row, height = self.rows().index(text), self.list.send(ROW_HEIGHT)

        def is_in_sight():
            first = self.list.send(GET_TOP)
            return first <= row and (row - first + 1) * height <= self.list.size[1]
        while not is_in_sight():
            first = self.list.send(GET_TOP)
            self.page.screen.scroll(*self.list.place(), 1 if row < first else -1)
            wait_for(lambda: self.list.send(GET_TOP) != first, f"{self.kind} does not scroll")
        self.page.click(self.list, 0.4,
                        (row - self.list.send(GET_TOP)) * height + height // 2, times=times)
        if times == 1:
            self.wait_selected(text)

    def wait_selected(self, text):
        row = self.rows().index(text)
        wait_for(lambda: self.list.send(GET_SELECTION) == row, f"{text!r} is not selected")

    def open(self, text, rows, folder):
        self.click(text, times=2)
        wait_for(lambda: self.label.look().text == folder, lambda: f"in {self.label.text!r}")
        self.wait_rows(rows, folder)

    def wait_delete(self, is_enabled):
        wait_for(lambda: self.delete.look().enabled == is_enabled, "Delete does not follow")

    def press_save(self):
        """By the pointer; the box for the name."""
        self.page.click(self.save)
        return NameBox(self.dialog)

    def press_delete(self):
        self.page.click(self.delete)


class NameBox:
    def __init__(self, dialog):
        self.dialog, self.screen = dialog, dialog.screen
        self.window = dialog.program.window("Save Parameters Preset")
        self.name, self.save, self.cancel = (self.window.item(one) for one in (1358, 1, 2))
        self.name.wait_focus()
        self.wait_keys()

    def wait_keys(self):
        """From the screen, by whichever window of the program's."""
        titles = (self.window.text, self.dialog.window.text)
        wait_for(lambda: self.screen.focused() in titles,
                 lambda: f"the keys go to {self.screen.focused()!r}")

    def type(self, text):
        """Instead of what stands there."""
        self.screen.key("Home", "shift+End", "Delete")
        self.name.wait_text("")
        self.screen.do("type", "--delay", 400 if not text.isascii() else 0, "--", text)
        self.name.wait_text(text)

    def wait_gone(self):
        wait_for(self.window.gone, "the box stays")

    def wait_back(self):
        self.wait_gone()
        wait_for(lambda: self.dialog.window.look().enabled
                 and self.screen.focused() == self.dialog.window.text, "the dialog is not back")


class TakenBox(NameBox):
    """That the name is taken."""

    def __init__(self, dialog):
        self.dialog, self.screen = dialog, dialog.screen
        self.window = dialog.program.window("File Save Warning")
        self.wait_keys()

    def press(self, number):
        self.window.item(number).click()
        self.wait_gone()


def assignments(settings):
    """Those that differ from a new record's, for the fresh view."""
    return [f"{name}={text_of(value)}" for name, value in settings.items()
            if SETTINGS[name] != value]


def expectations(settings):
    def quoted(value):
        return f'"{value}"' if isinstance(value, str) else \
            f"{value:g}" if isinstance(value, float) else value
    return [f"expect setting {name} {quoted(value)}" for name, value in settings.items()
            if not name.endswith("Linked")]


def wait_shown(dialog, settings):
    dialog.wait_pane(dialog.window_at(0, 0, 1, *assignments(settings)))


def assert_page_shows(page, tab, settings):
    for row in NUMBERS[tab]:
        page.wait_value(row, settings[row[5]])
    page.look()
    for number, name in BOXES[tab]:
        equal((name, page[number].checked), (name, settings[name]))
    for number, name, _ in CHOICES[tab]:
        equal((name, page[number].send(GET_CHOICE)), (name, settings[name]))
    number, name = TEXTURES[tab]
    equal(page[number].text, settings[name].removesuffix(".twk"))
    for number, name in SWATCHES[tab].items():
        if page[number].enabled:
            color = settings[name]
            page[number].wait_color((color & 255, color >> 8 & 255, color >> 16))


def roomy(run):
    """A window with room for some rows of each list."""
    run.put("TarnwickStudio.ini", b"tfeL 20\nhtdW 1500\nthgH 1000\n")


@scenario(96, 144)
def lists_show_their_folders(run):
    roomy(run)
    for kind in LISTS:
        for name in ("Zinc.twkpst", "aged.TWKPST", "1840.twkpst", "(old).twkpst", "Notes.txt",
                     ".hidden/Seen.twkpst", "Iron/Notes.txt", "Wood/Board.twkpst",
                     "Wood/Oak/Deep.twkpst"):
            run.presets[f"{kind}/{name}"] = b""
    dialog = run.open(width=300, height=220, after=CANCELLED + expectations(SETTINGS))
    for kind in LISTS:
        shelf, built_in = Shelf(dialog, kind), BUILT_IN if kind == "Basic" else []
        top = built_in + ["\tIron", "\tWood", "(old)", "1840", "aged", "Zinc"]
        wood = built_in + ["\t..", "\tOak", "Board"]
        shelf.wait_rows(top)
        if shelf.delete is not None:
            shelf.wait_delete(False)
            # A file that is none can be deleted at least; a folder cannot.
            shelf.click("Zinc")
            shelf.wait_delete(True)
            shelf.click("\tIron")
            shelf.wait_delete(False)
        shelf.open("\tWood", wood, "Wood\\")
        shelf.open("\tOak", built_in + ["\t..", "Deep"], "Wood\\Oak\\")
        shelf.open("\t..", wood, "Wood\\")
        shelf.open("\t..", top, "")
        shelf.open("\tIron", built_in + ["\t.."], "Iron\\")
        dialog.window.shot(f"presets-{kind}")
    # Each list stays where it is, and no other follows.
    shelf.open("\t..", top, "")
    for kind in LISTS:
        shelf = Shelf(dialog, kind)
        if kind == "Background":
            shelf.wait_rows(top)
        else:
            shelf.wait_rows((BUILT_IN if kind == "Basic" else []) + ["\t.."], "Iron\\")
    dialog.cancel()


@scenario()
def without_a_folder_there_are_two_rows(run):
    dialog = run.open(width=300, height=220, after=CANCELLED)
    for kind in LISTS:
        Shelf(dialog, kind).wait_rows(BUILT_IN if kind == "Basic" else [])
    dialog.cancel()


@scenario(96, 144)
def a_click_loads_the_share_of_a_list(run):
    roomy(run)
    look = {**SETTINGS, **WASH, **BACKGROUND, "WashScale1": 10, "SurfaceDepth1": 20,
            "SurfaceUse": 1}
    nothing = {**SETTINGS, "SurfaceUse": 0}
    run.presets = {
        "Wash/Two.twkpst": preset("Wash", {**SETTINGS, **WASHES}),
        "Wash/One.twkpst": preset("Wash", {**SETTINGS, **WASH, "WashScale1": 90}),
        "Surface/Two.twkpst": preset("Surface", {**SETTINGS, **SURFACES}),
        "Surface/Off.twkpst": preset("Surface", nothing),
        "Background/Blue.twkpst": preset("Background", {**SETTINGS, **BACKGROUND}),
        "User/Mine.twkpst": preset("User", look),
        "Basic/Plain/Start.twkpst": preset("User", {**SETTINGS, **SURFACES}),
    }
    now = dict(SETTINGS)
    # What a file does not tell of a second wash stays.
    final = {**SETTINGS, **WASHES, **{name: SETTINGS[name] for name in WASH}, **SURFACES,
             "SecondWashExists": 0}
    dialog = run.open(width=500, height=400, after=expectations(final))
    wait_shown(dialog, now)

    def load(kind, name, changed):
        shelf = Shelf(dialog, kind)
        shelf.click(name)
        now.update(changed)
        wait_shown(dialog, now)
        if shelf.tab != 0:
            assert_page_shows(shelf.page, shelf.tab, now)
        return shelf
    load("Wash", "Two", WASHES)
    wait_row(dialog, TWO[1])
    load("Surface", "Two", SURFACES)
    wait_row(dialog, TWO[2])
    load("Background", "Blue", BACKGROUND)
    # In the view of the second wash, which goes.
    dialog.tab(1)
    choose(dialog, 502)
    shelf = load("Wash", "One", {**WASH, "WashScale1": 90, "SecondWashExists": 0})
    wait_row(dialog, ONE[1])
    assert is_selected(dialog, 500) and shelf.page[1023].enabled
    # The names go with the layers.
    load("Surface", "Off", {"SurfaceUse": 0, "SurfaceFileName1": NONE, "SurfaceFileName2": NONE,
                            "SecondSurfaceExists": 0})
    wait_row(dialog, ONE[2])
    load("User", "Mine", {**{name: look[name] for name in
                             {**WASH, **SURFACE, **BACKGROUND}}, "SurfaceUse": 1})
    shelf = Shelf(dialog, "Basic")
    shelf.open("\tPlain", BUILT_IN + ["\t..", "Start"], "Plain\\")
    load("Basic", "Start", {**{name: SETTINGS[name] for name in {**WASH, **BACKGROUND}},
                            **SURFACES})
    dialog.tab(2)
    wait_row(dialog, TWO[2])
    dialog.ok()


@scenario()
def options_come_with_a_preset(run):
    """The wash in a mask wants the background below it."""
    run.presets = {"Wash/Masked.twkpst": preset("Wash", {**SETTINGS, "MaskLayerEffect": 1}),
                   "Background/Above.twkpst": preset("Background",
                                                     {**SETTINGS, "NewLayerSurface": 1})}
    dialog = run.open(width=300, height=220, planes=4, after=CANCELLED)
    options = lambda: [dialog[number].look().checked for number in (1022, 1023, 1025, 1024)]
    equal(options(), [0, 0, 0, 0])
    Shelf(dialog, "Wash").click("Masked")
    wait_for(lambda: options() == [0, 1, 0, 1], lambda: f"options are {options()}")
    Shelf(dialog, "Background").click("Above")
    wait_for(lambda: options() == [0, 1, 1, 1], lambda: f"options are {options()}")
    dialog.cancel()


@scenario(96, 144)
def save_asks_for_a_name(run):
    """With the pointer: new, taken, and not at all."""
    roomy(run)
    run.presets["Wash/Worn.twkpst"] = preset("Wash", {**SETTINGS, "WashScale1": 60})
    worn = lambda scale: lines_of("Wash", {**SETTINGS, "WashScale1": scale})
    read = lambda name: read_preset(run.preset(f"Wash/{name}.twkpst"))
    dialog = run.open(width=300, height=220, after=CANCELLED + ["expect boxes 4"])
    shelf, scale = Shelf(dialog, "Wash"), NUMBERS[1][0]
    page = shelf.page
    page.type(1024, "37")
    box = shelf.press_save()
    equal([one.text for one in (box.name, box.save, box.cancel)], ["", "Save", "Cancel"])
    assert "The name of new preset" in [one.text for one in box.window.children()]
    equal(box.save.look().enabled, False)
    box.window.shot("preset-name")
    # Nothing is saved without a name.
    run.screen.key("Return")
    box.type("Mine")
    equal(box.save.look().enabled, True)
    run.screen.key("Home", "shift+End", "BackSpace")
    wait_for(lambda: not box.save.look().enabled, "Save stays enabled")
    box.type("Mine")
    box.save.click()
    box.wait_back()
    shelf.wait_rows(["Mine", "Worn"])
    equal(read("Mine"), worn(37))
    page.type(1024, "8")
    shelf.click("Mine")
    page.wait_value(scale, 37)
    wait_shown(dialog, {**SETTINGS, "WashScale1": 37})

    def ask(name):
        box = shelf.press_save()
        box.type(name)
        box.save.click()
        box.wait_gone()
        return TakenBox(dialog)
    warning = ask("worn.TWKPST")
    buttons = {one.id: one.text.replace("&", "") for one in warning.window.children()}
    equal(buttons.pop(65535), "The file already exist!\n Do you want rewrite it?")
    equal({6: "Yes", 7: "No", 2: "Cancel"}, {one: buttons[one] for one in (6, 7, 2)})
    warning.window.shot("preset-exists")
    warning.press(2)
    box.wait_back()
    # No leads back to the box and to what was typed.
    ask("Worn").press(7)
    box = NameBox(dialog)
    equal(box.name.text, "Worn")
    box.cancel.click()
    box.wait_back()
    ask("Worn").press(7)
    box = NameBox(dialog)
    box.type("Wax.twkpst")
    box.save.click()
    box.wait_back()
    equal([read("Worn"), read("Wax")], [worn(60), worn(37)])
    page.type(1024, "12")
    ask("Worn.twkpst").press(6)
    box.wait_back()
    equal(read("Worn"), worn(12))
    shelf.wait_rows(["Mine", "Wax", "Worn"])
    equal(sorted(os.listdir(run.preset("Wash"))), ["Mine.twkpst", "Wax.twkpst", "Worn.twkpst"])
    dialog.cancel()


@scenario()
def each_list_saves_its_share(run):
    roomy(run)
    settings = {**SETTINGS, **WASHES, **SURFACES, **BACKGROUND, "NewLayerEffect": 1}
    run.presets = {f"{kind}/Old.twkpst": b"" for kind in LISTS}
    words = " ".join(f'{name} "{text_of(value)}"' for name, value in settings.items()
                     if not name.endswith("Linked"))
    dialog = run.open(width=300, height=220, planes=4, before=[f"settings {words}"],
                      after=CANCELLED)
    for kind in ("User", "Wash", "Surface", "Background"):
        shelf = Shelf(dialog, kind)
        box = shelf.press_save()
        box.type("New of mine")
        run.screen.key("Return")
        box.wait_back()
        shelf.wait_rows(["New of mine", "Old"])
        equal(read_preset(run.preset(f"{kind}/New of mine.twkpst")), lines_of(kind, settings))
    dialog.cancel()


@scenario()
def what_cannot_be_saved_is_told(run):
    """No folder, and a name that no file can bear. The host closes the message."""
    run.presets["Wash/Worn.twkpst"] = b""
    dialog = run.open(width=300, height=220,
                      after=CANCELLED + ['expect box "Cannot Save File!"'] * 2)
    for kind, name, rows in (("User", "Mine", []), ("Wash", "sub/folder", ["Worn"])):
        shelf = Shelf(dialog, kind)
        box = shelf.press_save()
        box.type(name)
        box.save.click()
        box.wait_back()
        shelf.wait_rows(rows)
    equal(os.listdir(run.preset("")), ["Wash"])
    equal(os.listdir(run.preset("Wash")), ["Worn.twkpst"])
    dialog.cancel()


@scenario()
def delete_takes_the_file(run):
    """At once; settings and picture stay."""
    roomy(run)
    one = preset("Wash", {**SETTINGS, "WashScale1": 33})
    run.presets = {"Wash/Board.twkpst": one, "Wash/Wood/Board.twkpst": one,
                   "Wash/Wood/Plank.twkpst": one, "Wash/Wood/Oak/Deep.twkpst": one}
    dialog = run.open(width=300, height=220, after=CANCELLED)
    shelf = Shelf(dialog, "Wash")
    shelf.open("\tWood", ["\t..", "\tOak", "Board", "Plank"], "Wood\\")
    shelf.click("\tOak")
    shelf.wait_delete(False)
    shelf.click("Board")
    shelf.wait_delete(True)
    shelf.press_delete()
    shelf.wait_rows(["\t..", "\tOak", "Plank"], "Wood\\")
    shelf.wait_delete(False)
    shelf.list.wait_focus()
    equal(sorted(os.listdir(run.preset("Wash/Wood"))), ["Oak", "Plank.twkpst"])
    wait_shown(dialog, {**SETTINGS, "WashScale1": 33})
    # The row goes even if the file has gone before it.
    shelf.click("Plank")
    os.remove(run.preset("Wash/Wood/Plank.twkpst"))
    shelf.wait_delete(True)
    shelf.press_delete()
    shelf.wait_rows(["\t..", "\tOak"], "Wood\\")
    shelf.open("\t..", ["\tWood", "Board"], "")
    dialog.cancel()


@scenario()
def a_sub_folder_is_saved_to(run):
    """Odd, and kept: the question is about the folder at the top."""
    roomy(run)
    run.presets = {"Wash/Top.twkpst": b"top", "Wash/Wood/Inner.twkpst": b"inner"}
    dialog = run.open(width=300, height=220, after=CANCELLED + ["expect boxes 1"])
    shelf = Shelf(dialog, "Wash")
    shelf.open("\tWood", ["\t..", "Inner"], "Wood\\")
    box = shelf.press_save()
    box.type("Inner")
    box.save.click()
    box.wait_back()
    shelf.wait_rows(["\t..", "Inner", "Inner"], "Wood\\")
    box = shelf.press_save()
    box.type("Top")
    box.save.click()
    box.wait_gone()
    TakenBox(dialog).press(6)
    box.wait_back()
    shelf.wait_rows(["\t..", "Inner", "Inner"], "Wood\\")
    for name in ("Inner", "Top"):
        equal(read_preset(run.preset(f"Wash/Wood/{name}.twkpst")), lines_of("Wash", SETTINGS))
    with open(run.preset("Wash/Top.twkpst"), "rb") as file:
        equal(file.read(), b"top")
    dialog.cancel()


@scenario()
def the_first_rows_reset_and_bring_back(run):
    """Also in a second dialog, after OK."""
    look = {**SETTINGS, **WASHES, **BACKGROUND}
    run.presets["Basic/Look.twkpst"] = preset("User", look)
    look["WashScale1"] = 12
    none = {f"{name}FileName{number}": NONE
            for name, number in (("Wash", 1), ("Surface", 1), ("Background", ""))}
    dialog = run.open(before=["settings WashScale1 30"], after=[
        *expectations(look), "revert document", "run", *expectations(none), "expect untouched"])
    start, plain = {**SETTINGS, "WashScale1": 30}, read_pnm(run.picture)
    plain = plain.crop(0, 0, *dialog[1002].size)
    shelf = Shelf(dialog, "Basic")
    for row, want in (("Last Used Settings", start), ("Reset All", None),
                      ("Last Used Settings", start), ("Look", {**look, "WashScale1": 40}),
                      ("Last Used Settings", start), ("Look", {**look, "WashScale1": 40})):
        shelf.click(row)
        dialog.wait_pane(plain) if want is None else wait_shown(dialog, want)
    page = Page(dialog, 1)
    wait_row(dialog, TWO[1])
    dialog[501].click()
    wait_for(lambda: page.look()[1024].enabled, "the first wash cannot be edited")
    page.type(1024, "12")
    page.wait_value(NUMBERS[1][0], 12)
    shelf = Shelf(dialog, "Basic")
    shelf.click("Reset All")
    dialog.wait_pane(plain)
    shelf.click("Last Used Settings")
    wait_shown(dialog, look)
    dialog[1].click()
    wait_for(dialog.window.gone, "OK does nothing")

    dialog = type(dialog)(run)
    shelf = Shelf(dialog, "Basic")
    for row, want in (("Reset All", None), ("Last Used Settings", look), ("Reset All", None)):
        shelf.click(row)
        dialog.wait_pane(plain) if want is None else wait_shown(dialog, want)
    dialog.tab(1)
    wait_row(dialog, ONE[1])
    dialog.ok()


@scenario()
def bad_files_change_nothing(run):
    """A texture that is missing is told, and white stands for it."""
    roomy(run)
    run.presets = {
        "Wash/1 other.twkpst": b"Something else;\nVersion 2;\n1cSW 13 ;\n",
        "Wash/2 empty.twkpst": b"",
        "Wash/3 cut.twkpst": HEAD[:20],
        "Wash/4 lines.twkpst": HEAD + b"QQQQ 5 ;\n1cS\n 1cSW 44 ;\n;1tIW 5 ;\n1tIW 999 ;\n1dnR x ;",
        "Wash/5 gone.twkpst": preset("Wash", {**SETTINGS, "WashFileName1": "Gone.twk"}),
        "Wash/6 removed.twkpst": preset("Wash", {**SETTINGS, "WashScale1": 5})}
    dialog = run.open(width=300, height=220, after=CANCELLED + expectations(SETTINGS) + [
        'expect box with "Gone.twk is not presented or wrong"'])
    shelf = Shelf(dialog, "Wash")
    os.remove(run.preset("Wash/6 removed.twkpst"))
    for name in ("1 other", "2 empty", "3 cut", "6 removed"):
        shelf.click(name)
        shelf.wait_delete(True)
        assert_page_shows(shelf.page, 1, SETTINGS)
        wait_shown(dialog, SETTINGS)
    # Lines that are none are skipped; what is too large stays, and a slider is at its end.
    shelf.click("4 lines")
    shelf.page.wait_value(NUMBERS[1][0], 44)
    shelf.page.wait_value(NUMBERS[1][1], (200, 999, 200))
    wait_shown(dialog, {**SETTINGS, "WashScale1": 44, "WashIntensity1": 999})
    shelf.click("5 gone")
    wait_for(lambda: dialog.window.look().enabled and shelf.page[1015].look().text == "Gone",
             "the name is not shown")
    wait_shown(dialog, {**SETTINGS, "WashFileName1": "Gone.twk"})
    dialog.cancel()


@scenario()
def names_may_have_an_umlaut(run):
    run.presets["User/Grün/Ähren.twkpst"] = preset("User", {**SETTINGS, "WashScale1": 33})
    dialog = run.open(width=300, height=220, after=CANCELLED)
    shelf = Shelf(dialog, "User")
    shelf.open("\tGrün", ["\t..", "Ähren"], "Grün\\")
    shelf.click("Ähren")
    wait_shown(dialog, {**SETTINGS, "WashScale1": 33})
    box = shelf.press_save()
    box.type("Möbel")
    box.save.click()
    box.wait_back()
    shelf.wait_rows(["\t..", "Ähren", "Möbel"], "Grün\\")
    equal(read_preset(run.preset("User/Grün/Möbel.twkpst")),
          lines_of("User", {**SETTINGS, "WashScale1": 33}))
    shelf.click("Ähren")
    shelf.wait_delete(True)
    shelf.press_delete()
    shelf.wait_rows(["\t..", "Möbel"], "Grün\\")
    equal(os.listdir(run.preset("User/Grün")), ["Möbel.twkpst"])
    dialog.cancel()


@scenario(96, 144)
def keys_alone_do_all_but_folders(run):
    run.presets = {"Basic/Look.twkpst": preset("User", {**SETTINGS, **BACKGROUND}),
                   "User/Old.twkpst": preset("User", {**SETTINGS, **WASH}),
                   "User/Odd.twkpst": preset("User", SETTINGS)}
    want = {**SETTINGS, **WASH}
    dialog = run.open(width=300, height=220, after=expectations(want) + ["expect boxes 1"])
    page = Page(dialog, 0)
    basic, user = Shelf(dialog, "Basic", page), Shelf(dialog, "User", page)

    def walk(item):
        for _ in range(20):
            if item.has_focus():
                return
            before = run.session.ask("focus")["focus"]
            run.screen.key("Tab")
            wait_for(lambda: run.session.ask("focus")["focus"] != before, "Tab does nothing")
        raise AssertionError(f"{item.id} is not reached")
    walk(basic.list)
    for key, text, settings in (("Home", "Reset All", None),
                                ("Down", "Last Used Settings", SETTINGS),
                                ("Down", "Look", {**SETTINGS, **BACKGROUND}),
                                ("Up", "Last Used Settings", SETTINGS)):
        run.screen.key(key)
        basic.wait_selected(text)
        if settings is None:
            dialog.wait_pane(read_pnm(run.picture))
        else:
            wait_shown(dialog, settings)
    walk(user.list)
    # The first key in a list without a selection takes the first row, whichever it is.
    run.screen.key("Home", "End")
    user.wait_selected("Old")
    wait_shown(dialog, want)
    user.wait_delete(True)
    walk(user.save)
    for name, answer in (("Mine", None), ("Odd", "y")):
        run.screen.key("space")
        box = NameBox(dialog)
        box.type(name)
        run.screen.key("Return")
        box.wait_gone()
        if answer:
            warning = TakenBox(dialog)
            run.screen.key(f"alt+{answer}")
            warning.wait_gone()
        box.wait_back()
        user.save.wait_focus()
        equal(read_preset(run.preset(f"User/{name}.twkpst")), lines_of("User", want))
    user.wait_rows(["Mine", "Odd", "Old"])
    # Escape leaves the name box, and no more.
    run.screen.key("space")
    box = NameBox(dialog)
    run.screen.key("Escape")
    box.wait_back()
    walk(user.delete)
    run.screen.key("space")
    user.wait_rows(["Mine", "Odd"])
    user.list.wait_focus()
    run.screen.key("Return")
    run.finish()
