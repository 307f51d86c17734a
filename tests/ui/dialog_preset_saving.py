"""Presets are saved and deleted, by pointer and by keys, also under foreign letters."""
import os

from dialog_pages import NUMBERS, Page
from picture import read_pnm
from preset_files import lines_of, preset, read_preset, text_of
from preset_shelf import (BACKGROUND, LISTS, SETTINGS, SURFACES, WASH, WASHES, NameBox, Shelf,
                          TakenBox, expectations, roomy, wait_shown)
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]


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
