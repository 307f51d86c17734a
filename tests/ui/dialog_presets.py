"""The lists of presets: what they show, what a click loads, the first rows."""
import os
import time

from dialog_pages import NUMBERS, Page
from dialog_strip import ONE, TWO, choose, is_selected, wait_row
from picture import read_pnm
from preset_files import HEAD, NONE, preset
from preset_shelf import (BACKGROUND, BUILT_IN, LISTS, SETTINGS, SURFACE, SURFACES, WASH, WASHES,
                          Shelf, assert_page_shows, expectations, roomy, wait_shown)
from preset_shelf import NameBox, assignments  # noqa: F401  others find them here
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]


@scenario(96, 144)
def lists_show_their_folders(run):
    """On Basic in the system's order, which is that of names; sub-folders on top."""
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
        dialog.window.shot(f"presets-{kind}")
        if kind in ("Basic", "Wash"):
            shelf.open("\tOak", built_in + ["\t..", "Deep"], "Wood\\Oak\\")
            shelf.open("\t..", wood, "Wood\\")
            shelf.open("\t..", top, "")
            shelf.open("\tIron", built_in + ["\t.."], "Iron\\")
    # Each list stays where it is.
    for kind, rows, folder in (("Basic", BUILT_IN + ["\t.."], "Iron\\"), ("User", wood, "Wood\\"),
                               ("Wash", ["\t.."], "Iron\\"), ("Surface", wood, "Wood\\")):
        Shelf(dialog, kind).wait_rows(rows, folder)
    dialog.cancel()


@scenario()
def without_a_folder_there_are_two_rows(run):
    dialog = run.open(width=300, height=220, after=CANCELLED)
    for kind in LISTS:
        Shelf(dialog, kind).wait_rows(BUILT_IN if kind == "Basic" else [])
    dialog.cancel()


@scenario()
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

    # The screen may still have the keys with the host, which had them in between.
    dialog = type(dialog)(run, others=["Test host"])
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
def an_up_down_counts_as_last_used(run):
    """Though a preset of another page follows before its picture does."""
    roomy(run)
    run.presets = {"Basic/Look.twkpst": preset("User", {**SETTINGS, "WashScale1": 5})}
    dialog = run.open(width=300, height=220, after=CANCELLED)
    page, row = Page(dialog, 1), NUMBERS[1][0]
    page.click(page[row[2]], 0.5, 0.25)
    shelf = Shelf(dialog, "Basic")
    shelf.click("Look")
    time.sleep(0.8)  # what has been put off has come by then
    wait_shown(dialog, {**SETTINGS, "WashScale1": 5})
    shelf.click("Last Used Settings")
    wait_shown(dialog, {**SETTINGS, "WashScale1": SETTINGS["WashScale1"] + 1})
    dialog.cancel()
