"""The strip above the pane: views, second washes and surfaces, Reset."""
from picture import read_pnm
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
IDLE, SELECTED = (127, 127, 127), (255, 255, 255)
STRIP = tuple(range(500, 517)) + (604, 608, 612, 616)
NONE = "No_Texture.twk"

ONE = {0: [500, 604, 504, 513],
       1: [500, 604, 501, 608, 503, 612, 504, 514],
       2: [500, 604, 506, 608, 508, 612, 504, 515],
       3: [500, 604, 505, 608, 504, 516]}
TWO = {1: [500, 604, 501, 512, 608, 502, 511, 612, 504, 514],
       2: [500, 604, 506, 510, 608, 507, 509, 612, 504, 515]}

TIPS = {500: "View all combined image effects", 501: "View and edit wash effect",
        502: "View and edit wash effect", 503: "Apply an additional wash effect",
        504: "View the original image", 505: "View and edit background effect",
        506: "View and edit surface effect", 507: "View and edit surface effect",
        508: "Apply an additional surface effect", 509: "Delete surface effect",
        510: "Delete surface effect", 511: "Delete wash effect", 512: "Delete wash effect",
        513: "Reset all wash settings", 514: "Reset all wash settings",
        515: "Reset all surface settings", 516: "Reset all background settings"}


def row(dialog):
    """What shows of the strip, as from left to right it does."""
    dialog.look()
    shown = [number for number in STRIP if dialog.shown(number)]
    return sorted(shown, key=lambda number: dialog[number].frame[0])


def wait_row(dialog, want):
    wait_for(lambda: row(dialog) == want, lambda: f"the strip shows {row(dialog)}, not {want}")


def choose(dialog, number, selected=None):
    """A click on a view; the button that stands for it afterwards is drawn so."""
    dialog[number].click()
    button = dialog[selected or number]
    wait_for(lambda: button.look().visible and SELECTED in button.picture().colors(),
             f"{selected or number} is not selected")


def is_selected(dialog, number):
    return SELECTED in dialog[number].picture().colors()


@scenario(96, 120, 144)
def each_page_has_its_strip(run):
    # As wide as the fine screen's texts want it.
    run.put("TarnwickStudio.ini", b"tfeL 20\nhtdW 1400\nthgH 900\n")
    dialog = run.open(width=400, height=300, after=CANCELLED)
    for number, text in TIPS.items():
        equal(dialog[number].tips(), [text])
    left, top, right, _ = dialog[1002].frame
    for tab, want in ONE.items():
        dialog.tab(tab)
        wait_row(dialog, want)
        # All of it on the black strip of 33 rows above the pane, and nothing on another.
        frames = [dialog[number].frame for number in want]
        for one, other in zip(frames, frames[1:]):
            assert one[2] <= other[0], f"{one} lies on {other} on page {tab}"
        for frame in frames:
            assert frame[0] >= left and frame[2] <= right, f"{frame} is beside the pane"
            assert frame[1] >= top - 33 and frame[3] <= top, f"{frame} is beside the strip"
        assert is_selected(dialog, 500) and not is_selected(dialog, 504)
        dialog.window.shot(f"dialog-strip-{tab}")
    for tab, button in ((1, 503), (2, 508)):
        dialog.tab(tab)
        choose(dialog, button, button - 1)
        wait_row(dialog, TWO[tab])
        dialog.window.shot(f"dialog-strip-{tab}-two")
    dialog.cancel()


@scenario(96, 120, 144)
def the_strip_fits_the_smallest_window(run):
    """With all that there can be on it; on fine screens it takes two lines for that."""
    dialog = run.open(width=400, height=300, after=CANCELLED)
    left, top, right, _ = dialog[1002].frame
    for tab, want in ONE.items():
        dialog.tab(tab)
        if tab in TWO:
            adds = want[-4]
            wait_for(lambda: dialog.shown(adds), f"{adds} is not there")
            dialog[adds].click()
            want = TWO[tab]
        # The separator at a line's end goes.
        buttons = {number for number in want if number < 600}
        wait_for(lambda: buttons <= set(row(dialog)) <= set(want),
                 lambda: f"the strip shows {row(dialog)}, not {want}")
        frames = [dialog[number].frame for number in row(dialog)]
        for index, one in enumerate(frames):
            for other in frames[index + 1:]:
                assert one[2] <= other[0] or other[2] <= one[0] or one[3] <= other[1] \
                    or other[3] <= one[1], f"{one} lies on {other} on page {tab}"
            assert left <= one[0] and one[2] <= right and top - 33 <= one[1] and one[3] <= top, \
                f"{one} is beside the strip on page {tab}"
        dialog.window.shot(f"dialog-strip-smallest-{tab}")
    dialog.cancel()


@scenario()
def a_page_keeps_its_view(run):
    dialog = run.open(after=CANCELLED)
    aged, width, height = dialog.window_at(0, 0), *dialog[1002].size
    plain = read_pnm(run.picture).crop(0, 0, width, height)
    dialog.wait_pane(aged)
    choose(dialog, 504)
    dialog.wait_pane(plain)
    dialog.tab(3)
    dialog.wait_pane(aged)
    choose(dialog, 505)
    dialog.wait_pane(dialog.window_at(0, 0, 1, "View=3"))
    dialog.tab(0)
    dialog.wait_pane(plain)
    assert is_selected(dialog, 504) and not is_selected(dialog, 500)
    choose(dialog, 500)
    dialog.wait_pane(aged)
    dialog.cancel()


@scenario()
def a_second_wash_comes_and_goes(run):
    """The first is deleted: the second takes its place, and the strip has one again."""
    dialog = run.open(after=["expect setting SecondWashExists 0",
                             'expect setting WashFileName1 "General_Store.twk"',
                             'expect setting WashFileName2 "Rusted.twk"'],
                      before=['settings WashFileName1 "Rusted.twk" WashOffsetY1 30 WashIntensity2 150'])
    two = ("WashFileName1=Rusted.twk", "SecondWashExists=1", "WashOffsetY1=30",
           "WashIntensity2=150")
    dialog.tab(1)
    choose(dialog, 503, 502)
    wait_row(dialog, TWO[1])
    dialog.wait_pane(dialog.window_at(0, 0, 1, "View=2", *two))
    choose(dialog, 500)
    dialog.wait_pane(dialog.window_at(0, 0, 1, *two))
    dialog[512].click()
    wait_row(dialog, ONE[1])
    assert is_selected(dialog, 501)
    # With its kind and its colour, but where the first one has been moved to.
    dialog.wait_pane(dialog.window_at(
        0, 0, 1, "View=1", "WashFileName1=General_Store.twk", "WashIntensity1=150", "WashType1=1",
        "WashStainColor1=25700", "WashOffsetY1=30"))
    dialog.ok()


@scenario()
def a_second_wash_is_linked_to_the_first(run):
    """With the texture, which both share by then, it takes all that is linked of the first."""
    linked = {"WashScale1": 80, "WashScale2": 80, "WashFlipVer1": 1, "WashFlipVer2": 1,
              "BackgroundScale": 80, "BackgroundFlipVer": 1, "SecondWashExists": 1}
    names = [f'expect setting WashFileName{i} "Rusted.twk"' for i in (1, 2)]
    dialog = run.open(
        before=['settings WashFileName1 "Rusted.twk" WashScale1 80 WashFlipVer1 1 '
                'BackgroundScale 80 BackgroundFlipVer 1'],
        after=names + [f"expect setting {name} {value}" for name, value in linked.items()])
    dialog.tab(1)
    dialog[2000].click()
    wait_for(lambda: not dialog.window.look().enabled, "nothing is asked")
    run.screen.key("Tab", "space")  # from the choice to Yes
    wait_for(lambda: dialog.window.look().enabled, "the question stays")
    choose(dialog, 503, 502)
    wait_row(dialog, TWO[1])
    dialog.ok()


@scenario()
def reset_takes_its_page(run):
    dialog = run.open(after=CANCELLED, before=["settings SecondSurfaceExists 1"])
    dialog.tab(2)
    wait_row(dialog, TWO[2])
    choose(dialog, 507)
    dialog[515].click()
    wait_row(dialog, ONE[2])
    assert is_selected(dialog, 500)
    dialog.wait_pane(dialog.window_at(0, 0, 1, f"SurfaceFileName1={NONE}"))
    dialog.cancel()


@scenario()
def reset_all_asks_first(run):
    question = ('expect box "Are you sure you want to delete all the current settings? Once '
                'deleted, they cannot be restored"')
    dialog = run.open(after=[question, question, "expect untouched"] + [
        f'expect setting {name} "{NONE}"'
        for name in ("WashFileName1", "SurfaceFileName1", "BackgroundFileName")])
    aged, width, height = dialog.window_at(0, 0), *dialog[1002].size
    for answer, want in (("n", aged), ("y", read_pnm(run.picture).crop(0, 0, width, height))):
        dialog[513].click()
        wait_for(lambda: not dialog.window.look().enabled, "nothing is asked")
        run.screen.key(f"alt+{answer}")
        wait_for(lambda: dialog.window.look().enabled, "the question stays")
        dialog.wait_pane(want)
    dialog.ok()
