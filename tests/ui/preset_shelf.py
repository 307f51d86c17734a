"""Lists of presets on the pages, the box for a name, and settings to fill them with."""
from dialog_pages import BOXES, CHOICES, DEFAULTS, GET_CHOICE, NUMBERS, Page
from preset_files import START, text_of
from scenarios import equal
from screen import wait_for

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
