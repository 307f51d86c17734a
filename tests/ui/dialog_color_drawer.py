"""The drawer of colours, with a real pointer and real keys."""
from dialog_drawers import CANCEL, EFFECTS, LIVE, SELECT, SETS, Drawer, texture, wait_settings
from dialog_pages import Page, expectations
from preset_files import preset
from preset_shelf import SETTINGS
from scenarios import equal, scenario
from screen import wait_for

# By tab: Choose, and the text that names the choice.
COLORS = {2: (1402, 1150), 3: (1200, 1015)}
HEAD = "TarnwickStudi Press Preset;\nVersion 2;\n;------Color Preset------\n"
ORANGE, GREEN, BLUE = (255, 128, 0), (0, 255, 0), (0, 0, 255)


def tones(highlight, midtone, shadow, category="Empty"):
    return (f"{HEAD}rgtC {category} \t;\nlCiH {highlight} \t;\nlCdM {midtone} \t;\n"
            f"lCdS {shadow} \t;\n").encode()


def put_colors(run):
    """Amber, Birch and Cobalt; what Birch has as category is of two."""
    for name, color, category in (("Amber", 0x0080FF, "Red Tones"),
                                  ("Birch", 0x00FF00, "Green Tones|Wood Tones"),
                                  ("Cobalt", 0xFF0000, "Empty")):
        run.presets[f"Colors/{name}.twkpst"] = tones(color, color, color, category)
    run.textures = {"A00.twk": texture(0), "A01.twk": texture(255)}


def open_colors(dialog, tab):
    page = Page(dialog, tab)
    return Drawer(page, COLORS[tab][0])


@scenario()
def colors_are_tried_and_kept(run):
    put_colors(run)
    amber, green, blue = 0x0080FF, 0x00FF00, 0xFF0000

    def all_tones(kind, color):
        return {f"{kind}{tone}Color": color for tone in ("Highlight", "Midtone", "Shadow")}
    final = {**all_tones("Surface", blue), **all_tones("Background", green)}
    dialog = run.open(width=303, height=221, after=expectations({}) + [
        f"expect setting {name} {value}" for name, value in final.items()])
    known = {}
    for tab, kind, cell, name, color, swatches in (
            (2, "Surface", 3, "Cobalt", BLUE, (1073, 1071, 1072)),
            (3, "Background", 2, "Birch", GREEN, (1047, 1048, 1049))):
        for leave in (CANCEL, SELECT):
            drawer = open_colors(dialog, tab)
            wait_for(lambda: len(drawer.shown()) == 4, lambda: f"cells: {drawer.shown()}")
            if kind == "Background":
                # Of one colour, whatever the texture is.
                equal(drawer.shown()[1:], [ORANGE, GREEN, BLUE])
            drawer.press(1)
            wait_settings(dialog, {**known, **all_tones(kind, amber)})
            drawer.press(cell)
            drawer.wait_framed(cell)
            tried = {**known, **all_tones(kind, final[f"{kind}MidtoneColor"])}
            wait_settings(dialog, tried)
            drawer.leave(leave)
            known = known if leave == CANCEL else tried
            wait_settings(dialog, known)
            drawer.page[COLORS[tab][1]].wait_text("Custom" if leave == CANCEL else name)
        for swatch in swatches:
            drawer.page[swatch].wait_color(color)
    dialog.ok()


@scenario()
def colors_by_category_and_back_to_the_first(run):
    put_colors(run)
    dialog = run.open(width=303, height=221, after=expectations({}) + [
        "expect setting BackgroundHighlightColor 51455"])
    drawer = open_colors(dialog, 3)
    equal([drawer[one].tips() for one in (EFFECTS, SELECT)],
          [["Choose a color category"], ["Select and apply this effect"]])
    assert LIVE not in drawer.items and SETS not in drawer.items
    dialog.window.shot("drawer-colors")

    def wait_boxes(*want):
        wait_for(lambda: drawer.shown()[1:] == list(want), lambda: f"cells: {drawer.shown()}")
    drawer.choose_row(EFFECTS, "End")  # "Wood Tones", among the preset's two
    wait_boxes(GREEN)
    drawer.choose_row(EFFECTS, "Home", "Down")
    wait_boxes(ORANGE)
    # A row of blanks leaves the box where it was: on "Brown Tones", which none has.
    drawer.choose_row(EFFECTS, *["Down"] * 9)
    drawer.wait_row(EFFECTS, 9)
    wait_boxes()
    drawer.choose_row(EFFECTS, "Home")
    wait_boxes(ORANGE, GREEN, BLUE)
    drawer.press(2)
    drawer.leave(SELECT)
    drawer.page[1015].wait_text("Birch")
    # "Reset Colors" brings those of a new start: 255, 200, 0.
    drawer = open_colors(dialog, 3)
    drawer.press(0)
    wait_settings(dialog, {})
    drawer.leave(SELECT)
    drawer.page[1015].wait_text("Custom")
    dialog.ok()


@scenario()
def a_look_takes_nothing_from_a_whole_preset(run):
    """That lies among the colours."""
    put_colors(run)
    run.presets["Colors/Whole.twkpst"] = preset("User", {**SETTINGS, "WashScale1": 5})
    dialog = run.open(width=303, height=221, after=expectations({}))
    drawer = open_colors(dialog, 3)
    wait_for(lambda: len(drawer.shown()) == 5, lambda: f"cells: {drawer.shown()}")
    drawer.leave(CANCEL)
    wait_settings(dialog, {})
    dialog.ok()
