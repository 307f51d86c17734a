"""The four pages: every control by pointer, by keys and by its edit field.

A new control is a row in one of the tables. After OK the host looks at every setting:
those that were touched have their new values, all others are as they were.
"""
from scenarios import equal, near, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
NEXT_CONTROL, GET_POSITION, GET_TRACK, GET_CHOICE = 0x28, 0x472, 0x400, 0x147
SEE = 0.5

# Slider, edit field, up-down, least and largest value, setting.
NUMBERS = {
    1: [(1023, 1024, 1025, 0, 200, "WashScale1"),
        (1026, 1027, 1328, 1, 200, "WashIntensity1"),
        (1033, 1034, 1035, -100, 100, "WashCoverage1"),
        (1036, 1037, 1038, 1, 200, "WashCoverageScale1"),
        (1039, 1040, 1041, 0, 100, "WashEdgeDistance1"),
        (1042, 1043, 1044, 0, 200, "WashEdgeSoftness1")],
    2: [(1061, 1062, 1063, 0, 200, "SurfaceScale1"),
        (1352, 1056, 1357, 0, 100, "SurfaceDepth1"),
        (1178, 1276, 1077, 0, 100, "SurfaceMidtone"),
        (1068, 1069, 1070, -100, 100, "SurfaceHue"),
        (1353, 1057, 1358, 0, 200, "SurfaceBrightness"),
        (1354, 1059, 1359, 0, 200, "SurfaceContrast")],
    3: [(1050, 1054, 1055, 0, 200, "BackgroundScale"),
        (1326, 1327, 1028, -100, 100, "BackgroundHue"),
        (1329, 1330, 1331, 0, 100, "BackgroundMidtone")],
}
# Odd, and kept: the box that says horizontal sets the field that says vertical.
BOXES = {
    1: [(1005, "WashFlipVer1"), (1020, "WashFlipHor1"), (1021, "WashInvert1")],
    2: [(1007, "SurfacePerspectiveOn"), (1235, "SurfaceEntire"), (1205, "SurfaceIncludeWashArea"),
        (1090, "SurfaceFlipVer1"), (1089, "SurfaceFlipHor1"), (1006, "SurfaceInvert1")],
    3: [(1335, "BackgroundEntire"), (1405, "BackgroundEnhancedMode"), (1306, "BackgroundFlipVer"),
        (1052, "BackgroundFlipHor"), (1053, "BackgroundInvert")],
}
# Drop lists and how far a key goes down in them; turns to the left and to the right.
CHOICES = {1: [(1129, "WashType1", 2)], 2: [(1132, "SurfaceType1", 3)], 3: []}
TURNS = {1: (2001, 1002, "WashAngle1"), 2: (1202, 1201, "SurfaceAngle1"),
         3: (1078, 1079, "BackgroundAngle")}

DEFAULTS = {
    "NewLayerEffect": 0, "MaskLayerEffect": 0, "NewLayerBackground": 0, "NewLayerSurface": 0,
    "WashUse": 1, "SecondWashExists": 0, "WashScale1": 0, "WashScale2": 0, "WashIntensity1": 100,
    "WashIntensity2": 100, "WashFlipHor1": 0, "WashFlipHor2": 0, "WashFlipVer1": 0,
    "WashFlipVer2": 0, "WashInvert1": 0, "WashInvert2": 0, "WashAngle1": 0, "WashAngle2": 0,
    "WashCoverage1": 0, "WashCoverage2": 0, "WashCoverageScale1": 100, "WashCoverageScale2": 100,
    "WashEdgeDistance1": 0, "WashEdgeDistance2": 0, "WashEdgeSoftness1": 0,
    "WashEdgeSoftness2": 0, "WashInside1": 1, "WashInside2": 1, "WashRandomize1": 123,
    "WashRandomize2": 123, "WashType1": 0, "WashType2": 1, "BackgroundUse": 1,
    "BackgroundEntire": 0, "BackgroundScale": 0, "BackgroundFlipHor": 0, "BackgroundFlipVer": 0,
    "BackgroundInvert": 0, "BackgroundAngle": 0, "BackgroundHighlight": 100,
    "BackgroundMidtone": 100, "BackgroundShadow": 100, "BackgroundHue": 0,
    "BackgroundEnhancedMode": 0, "SurfaceFlipHor1": 0, "SurfaceFlipHor2": 0, "SurfaceFlipVer1": 0,
    "SurfaceFlipVer2": 0, "SurfaceUse": 1, "SurfaceEntire": 0, "SurfaceIncludeWashArea": 0,
    "SecondSurfaceExists": 0, "SurfaceDepth1": 50, "SurfaceDepth2": 50, "SurfaceScale1": 0,
    "SurfaceScale2": 0, "SurfaceInvert1": 0, "SurfaceInvert2": 0, "SurfaceBrightness": 100,
    "SurfaceContrast": 100, "SurfaceHue": 0, "SurfaceIntensity": 100, "SurfaceType1": 1,
    "SurfaceType2": 0, "SurfacePerspectiveOn": 0, "SurfaceHighlight": 100, "SurfaceMidtone": 50,
    "SurfaceShadow": 100, "SurfaceAngle1": 0, "SurfaceAngle2": 0, "WashOffsetX1": 0,
    "WashOffsetY1": 0, "WashOffsetX2": 0, "WashOffsetY2": 0, "BackgroundOffsetX": 0,
    "BackgroundOffsetY": 0, "SurfaceOffsetX1": 0, "SurfaceOffsetY1": 0, "SurfaceOffsetX2": 0,
    "SurfaceOffsetY2": 0,
}


def expectations(changed):
    return [f"expect setting {name} {value}" for name, value in {**DEFAULTS, **changed}.items()]


class Page:
    """The page that is up. Numbers come again on other pages and in the dialog."""

    def __init__(self, dialog, tab):
        self.dialog, self.screen = dialog, dialog.screen
        dialog.tab(tab)
        self.window = wait_for(
            lambda: next((one for one in dialog.window.children()
                          if one.class_name == "#32770" and one.visible), None), "no page is up")
        self.look()

    def look(self):
        # Those in sliders are found through these.
        self.items = {child.id: child for child in self.window.children() if child.id != 333}
        return self

    def __getitem__(self, number):
        return self.items[number]

    def track(self, number):
        """The trackbar in a slider."""
        return next(one for one in self[number].children()
                    if one.class_name == "msctls_trackbar32")

    def click(self, item, *place, **how):
        """Once no tip of another control lies there: a press on one only takes it away."""
        self.screen.move(*self.dialog[1002].place())
        wait_for(lambda: not any(one.visible for one in self.dialog.program.windows()
                                 if one.class_name == "tooltips_class32"), "a tip stays")
        item.click(*place, **how)

    def focus(self, number):
        """As a walk with Tab would; a field's text is selected."""
        self.dialog.window.send(NEXT_CONTROL, self[number].number, 1)
        self[number].wait_focus()

    def type(self, number, text):
        self.focus(number)
        # A page that is just shown anew may have set the caret back.
        self.screen.key("Home", "shift+End")
        self.screen.type(text)
        self.screen.key("Tab")
        wait_for(lambda: not self[number].has_focus(), "the field keeps the keys")

    def shows(self, slider, field, spin):
        """What the three that belong together show; a value only if they agree."""
        seen = (self.track(slider).send(GET_TRACK), int(self[field].look().text or 0),
                self[spin].send(GET_POSITION))
        return seen[0] if seen[0] == seen[1] == seen[2] else seen

    def wait_value(self, row, want):
        slider, field, spin = row[:3]
        wait_for(lambda: self.shows(slider, field, spin) == want,
                 lambda: f"{slider} shows {self.shows(slider, field, spin)}, not {want}")


def pointer_value(row, default):
    """A press beside the thumb goes ten on, or back from the end."""
    return default + 10 if default + 10 <= row[4] else default - 10


def each_page(run, change, changed):
    """Opens, makes the change on each page, accepts; the record and the picture are right."""
    dialog = run.open(width=300, height=220, planes=4, after=expectations(changed))
    for tab in (1, 2, 3):
        change(Page(dialog, tab), tab)
    dialog.ok()


@scenario(96, 144)
def numbers_by_pointer(run):
    changed = {row[5]: pointer_value(row, DEFAULTS[row[5]])
               for rows in NUMBERS.values() for row in rows}

    def change(page, tab):
        for row in NUMBERS[tab]:
            ahead = changed[row[5]] > DEFAULTS[row[5]]
            page.click(page.track(row[0]), 0.85 if ahead else 0.15, SEE)
            page.wait_value(row, changed[row[5]])
    each_page(run, change, changed)


@scenario()
def numbers_by_up_down(run):
    """Two clicks on the upper arrow, or on the lower one at the end."""
    step = {row[5]: 1 if DEFAULTS[row[5]] < row[4] else -1
            for rows in NUMBERS.values() for row in rows}
    changed = {name: DEFAULTS[name] + 2 * way for name, way in step.items()}

    def change(page, tab):
        for row in NUMBERS[tab]:
            page.click(page[row[2]], 0.5, 0.25 if step[row[5]] > 0 else 0.75, times=2)
            page.wait_value(row, changed[row[5]])
    each_page(run, change, changed)


@scenario()
def numbers_by_keys(run):
    step = {row[5]: 1 if DEFAULTS[row[5]] < row[4] else -1
            for rows in NUMBERS.values() for row in rows}
    changed = {name: DEFAULTS[name] + way for name, way in step.items()}

    def change(page, tab):
        for row in NUMBERS[tab]:
            page.focus(row[1])
            page.screen.key("Up" if step[row[5]] > 0 else "Down")
            page.wait_value(row, changed[row[5]])
    each_page(run, change, changed)


@scenario(96, 144)
def numbers_by_field(run):
    """One in the range is taken, one beyond it is brought to its end."""
    rows = [row for some in NUMBERS.values() for row in some]
    changed = {row[5]: row[3] + 7 for row in rows}

    def change(page, tab):
        for row in NUMBERS[tab]:
            page.type(row[1], "-150")
            page.wait_value(row, row[3])
            page.type(row[1], "999")
            page.wait_value(row, row[4])
            page.type(row[1], f"{row[3] + 7}.9")
            page.wait_value(row, row[3] + 7)
    each_page(run, change, changed)


def expected_boxes():
    changed = {name: 1 for boxes in BOXES.values() for _, name in boxes}
    changed.update({name: DEFAULTS[name] + down for choices in CHOICES.values()
                    for _, name, down in choices})
    # The turns come to one to the left and three to the right.
    changed.update({name: 180 for _, _, name in TURNS.values()})
    changed["WashInside1"] = 0
    changed["SurfaceType1"] = 4
    return changed


@scenario(96, 144)
def boxes_lists_and_turns_by_pointer(run):
    def change(page, tab):
        for number, _ in BOXES[tab]:
            page.click(page[number], 6, SEE)
            wait_for(lambda: page[number].look().checked, f"{number} stays off")
        for number, _, _ in CHOICES[tab]:
            page.click(page[number])
            page.screen.key("End", "Return")
        left, right, _ = TURNS[tab]
        page.click(page[left])
        for _ in range(3):
            page.click(page[right])
        if tab == 1:
            page.click(page[1032], 6, SEE)
            wait_for(lambda: page[1032].look().checked and not page[1031].look().checked,
                     "it stays inside")
    changed = expected_boxes()
    changed["WashType1"] = 3
    each_page(run, change, changed)


@scenario()
def boxes_lists_and_turns_by_keys(run):
    def change(page, tab):
        for number, _ in BOXES[tab]:
            page.focus(number)
            page.screen.key("space")
            wait_for(lambda: page[number].look().checked, f"{number} stays off")
        for number, name, down in CHOICES[tab]:
            page.focus(number)
            page.screen.key(*["Down"] * down)
            wait_for(lambda: page[number].send(GET_CHOICE) == DEFAULTS[name] + down,
                     f"{number} stays")
        left, right, _ = TURNS[tab]
        for number, times in ((left, 1), (right, 3)):
            page.focus(number)
            # The walk on comes after what was pressed.
            page.screen.key(*["space"] * times, "Tab")
            wait_for(lambda: not page[number].has_focus(), f"{number} keeps the keys")
        if tab == 1:
            page.focus(1031)
            page.screen.key("Right")
            wait_for(lambda: page[1032].look().checked, "it stays inside")
    each_page(run, change, expected_boxes())


@scenario(96, 144)
def light_is_turned_and_typed(run):
    changed = {"SurfaceLightAlpha": 120, "SurfaceLightBeta": 60}
    dialog = run.open(width=300, height=220, after=expectations({}) + [
        f"expect setting {name} {value}" for name, value in changed.items()])
    page = Page(dialog, 2)
    equal([page[1015].text, page[1016].text], ["58.00", "35.00"])
    # In the very middle the light stands overhead.
    page[1058].click()
    page[1016].wait_text("90.00")
    page.type(1015, "120.9")
    page[1015].wait_text("120.00")
    page.type(1016, "60")
    page[1016].wait_text("60.00")
    dialog.ok()


@scenario()
def edges_of_typing(run):
    dialog = run.open(width=300, height=220, after=expectations({"WashRandomize1": 234}))
    page = Page(dialog, 1)
    page.type(1027, "0")
    page.wait_value(NUMBERS[1][1], 1)
    page.type(1027, "100")
    page.type(1034, "-150")
    page.wait_value(NUMBERS[1][2], -100)
    page.type(1034, "much")
    page.wait_value(NUMBERS[1][2], 0)
    # Escape undoes the typing and stays.
    page.focus(1024)
    page.screen.type("77")
    page.screen.key("Escape")
    page[1024].wait_text("0")
    page.wait_value(NUMBERS[1][0], 0)
    # Enter commits and stays.
    page.focus(1024)
    page.screen.type("5")
    page.screen.key("Return")
    page.wait_value(NUMBERS[1][0], 5)
    page.type(1024, "0")
    # The thousands of a seed are dropped.
    page.type(1029, "1234")
    page[1029].wait_text("234")
    dialog.ok()


@scenario()
def a_short_seed_closes(run):
    """Odd, and kept: and the settings stay as they are."""
    dialog = run.open(width=300, height=220, after=["expect error -128"])
    page = Page(dialog, 1)
    page.focus(1029)
    page.screen.type("234")
    page.screen.key("Tab")
    run.finish()


@scenario()
def escape_without_typing_closes(run):
    dialog = run.open(width=300, height=220, after=["expect error -128"])
    page = Page(dialog, 1)
    page.focus(1024)
    page.screen.key("Escape")
    run.finish()


@scenario()
def random_changes_the_patches(run):
    dialog = run.open(width=300, height=220, after=["expect error -128"])
    page = Page(dialog, 1)
    page.type(1034, "60")
    page.wait_value(NUMBERS[1][2], 60)
    before, text = dialog[1002].picture().rgb(), page[1029].text
    page[1030].click()
    wait_for(lambda: page[1029].look().text != text, "the seed stays")
    assert 0 <= int(page[1029].text) <= 999, page[1029].text
    wait_for(lambda: dialog[1002].picture().rgb() != before, "the patches stay")
    dialog[2].click()
    run.finish()


@scenario()
def a_second_wash_is_edited_in_its_view(run):
    changed = {"SecondWashExists": 1, "WashScale2": 40}
    dialog = run.open(width=300, height=220, after=expectations(changed))
    page = Page(dialog, 1)
    dialog[503].click()  # a second wash, which is then in view
    wait_for(lambda: dialog.shown(512), "no second wash comes")
    page.type(1024, "40")
    page.wait_value(NUMBERS[1][0], 40)
    dialog[500].click()
    wait_for(lambda: not page.look()[1023].enabled, "the wash is edited unseen")
    equal([page[number].enabled for number in (1024, 1025, 1129, 1005, 1029, 2000)], [False] * 6)
    dialog[501].click()
    wait_for(lambda: page.look()[1023].enabled, "the first wash cannot be edited")
    page.wait_value(NUMBERS[1][0], 0)
    dialog.ok()


@scenario()
def what_can_be_used(run):
    for planes, can_fill in ((3, False), (4, True)):
        dialog = run.open(width=300, height=220, planes=planes, after=CANCELLED)
        page = Page(dialog, 1)
        equal([page[2000].enabled, page[2000].checked, page[1130].enabled], [False, 0, False])
        page = Page(dialog, 2)
        equal([page[number].enabled for number in (1001, 1235, 1205)], [False, can_fill, False])
        page = Page(dialog, 3)
        equal([page[number].enabled for number in (1098, 1335)], [False, can_fill])
        dialog.cancel()


SAVED, SAVE, DELETE = ("Click to apply previously saved settings", "Save current settings",
                       "Delete selected preset")
# Of the presets, and of what stands second in a row.
TIPS = {
    0: {1084: "Click to apply factory created settings", 1013: SAVED, 1300: SAVE, 1092: DELETE},
    1: {1085: SAVED, 1382: SAVE, 1087: DELETE, 1032: "Apply wash effect outside image selection"},
    2: {1086: SAVED, 1383: SAVE, 1088: DELETE,
        1016: "Adjust the lighting direction applied to surface effect"},
    3: {1012: SAVED, 1045: SAVE, 1046: DELETE},
}


@scenario()
def tips_are_there(run):
    dialog = run.open(width=60, height=44, after=CANCELLED)
    for tab, tips in TIPS.items():
        page = Page(dialog, tab)
        equal({number: page[number].tips() for number in tips},
              {number: [text] for number, text in tips.items()})
        if tab:
            continue
        # A list that has grown has its tip all over.
        page[1013].move(0.5, 0.97)
        wait_for(lambda: any(one.visible for one in dialog.program.windows()
                             if one.class_name == "tooltips_class32"), "no tip comes")
    dialog.cancel()


def overlaps(one, other):
    """By more than the pixel that rounding makes."""
    return (one[0] < other[2] - 1 and other[0] < one[2] - 1 and one[1] < other[3] - 1
            and other[1] < one[3] - 1)


@scenario(96, 120, 144)
def pages_are_tidy(run):
    """Nothing is cut, and nothing lies on another."""
    dialog = run.open(width=400, height=300, after=CANCELLED)
    edges = []
    for tab, name in enumerate(("basic", "wash", "surface", "background")):
        page = Page(dialog, tab)
        left, top, right, bottom = page.window.client
        shown = [item for item in page.window.children() if item.visible and item.id != 333]
        for item in shown:
            assert item.frame[0] >= left and item.frame[1] >= top and item.frame[2] <= right \
                and item.frame[3] <= bottom, f"{item.id} at {item.frame} is cut on {name}"
        groups = (1118, 1157, 2120, 2121, 2122, 2123, 2130, -1)
        edges.append(max(item.frame[2] for item in shown if item.id in groups) - left)
        solid = [item for item in shown if item.id not in groups]
        for index, one in enumerate(solid):
            for other in solid[index + 1:]:
                # An up-down lies in the frame of its field.
                assert not overlaps(one.frame, other.frame) or "updown" in \
                    one.class_name + other.class_name, \
                    f"{one.id} at {one.frame} lies on {other.id} at {other.frame} on {name}"
        dialog.window.shot(f"page-{name}")
    # The first page is there before the dialog has its size.
    near(edges[0], edges[1], 3)
    dialog.cancel()
