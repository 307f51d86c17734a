"""The main dialog in the test host, with a real pointer and real keys.

Usage: main_dialog.py --wine TOOL --agent EXE --host EXE --module FILE --data FOLDER
           --lists FOLDER --fresh-view EXE --shots FOLDER [NAME...]

The fresh view renders the same picture with the same textures, as the command line
does: what the pane shows has to be the same, pixel for pixel.
"""
import os
import shutil
import subprocess

import dialog_about  # noqa: F401  more scenarios
import dialog_auto  # noqa: F401
import dialog_color_drawer  # noqa: F401
import dialog_drawer_cells  # noqa: F401
import dialog_drawers  # noqa: F401
import dialog_filmstrip  # noqa: F401
import dialog_help  # noqa: F401
import dialog_links  # noqa: F401
import dialog_news  # noqa: F401
import dialog_options  # noqa: F401
import dialog_pages  # noqa: F401
import dialog_picker  # noqa: F401
import dialog_preset_saving  # noqa: F401
import dialog_presets  # noqa: F401
import dialog_preview  # noqa: F401
import dialog_strip  # noqa: F401
import dialog_values  # noqa: F401
from dialog_pages import Page
from host_run import HostRun
from scenarios import equal, near, run, scenario
from screen import wait_for

SMALLEST = (923, 704)
CANCELLED = ["expect error -128", "expect untouched"]

TIPS = {
    1: "Apply effect",
    2: "Don't apply effect",
    1000: "Decrease preview size (press CTRL + zero to fit in preview window)",
    1001: "Enlarge preview size (press CTRL + zero to fit in preview window)",
    1003: "Preview scale",
    1126: "View the Tarnwick Studio user manual to learn more (press F1 for tab specific info)",
    1127: "View all Tarnwick Studio presets",
    1129: "Apply random Tarnwick Studio effects",
    1130: "Review user information for plug-in",
    1022: "Generate the plug-in result in a new layer above current without affecting original "
          "image",
    1023: "Apply wash effect to a new mask layer without affecting original image",
    1025: "Apply surface effect to a new layer above without affecting original image",
    1024: "Apply background effect in a new layer below without affecting original image",
}


@scenario()
def every_control_has_its_tip(run):
    dialog = run.open(after=CANCELLED)
    for number, text in TIPS.items():
        equal(dialog[number].tips(), [text])
    for box, label in ((1022, 9111), (1023, 1112), (1025, 1114), (1024, 1113)):
        equal(dialog[label].tips(), [TIPS[box]])
    tabs = dialog[999]
    equal([text.strip() for text in run.session.ask("tabs", tabs.number)],
          ["Basic", "Wash", "Surface", "Background"])
    dialog.cancel()


def overlaps(one, other):
    return (one[0] < other[2] and other[0] < one[2] and one[1] < other[3] and other[1] < one[3])


def assert_tidy(dialog):
    """Nothing is cut by the window's edge, and nothing below the header lies on another."""
    left, top, right, bottom = dialog.window.client
    shown = [item for item in dialog.look().items.values()
             if item.visible and item.number != dialog.window.number]
    for item in shown:
        assert item.frame[0] >= left and item.frame[1] >= top and item.frame[2] <= right \
            and item.frame[3] <= bottom, f"{item.id} at {item.frame} is cut by {dialog.window.client}"
    # On fine screens the percentage's upper margin lies on the progress bar.
    numbers = (1, 2, 999, 1000, 1001, 1002, 1003, 1022)
    below = [dialog[number] for number in numbers + ((1004,) if dialog.run.session.dpi == 96 else ())]
    for index, one in enumerate(below):
        for other in below[index + 1:]:
            assert not overlaps(one.frame, other.frame), \
                f"{one.id} at {one.frame} lies on {other.id} at {other.frame}"


@scenario()
def opens_whole(run):
    dialog = run.open(after=CANCELLED)
    equal(dialog.window.frame[2] - dialog.window.frame[0], SMALLEST[0])
    equal(dialog.window.frame[3] - dialog.window.frame[1], SMALLEST[1])
    dialog.wait_pane(dialog.window_at(0, 0))
    equal(dialog[1003].text, "100%")
    equal([dialog[1000].enabled, dialog[1001].enabled], [False, True])
    equal(dialog[1004].send(0x408), 0)  # the progress bar has gone back
    assert_tidy(dialog)
    dialog.window.shot("dialog-smallest")
    dialog.cancel()


@scenario(120, 144)
def opens_on_a_fine_screen(run):
    """As small as it may be, which is no more than on a coarse one, with larger controls."""
    dialog = run.open(after=CANCELLED)
    equal(dialog.window.frame[2] - dialog.window.frame[0], SMALLEST[0])
    equal(dialog.window.frame[3] - dialog.window.frame[1], SMALLEST[1])
    dialog.wait_pane(dialog.window_at(0, 0))
    assert_tidy(dialog)
    dialog.window.shot("dialog-smallest")
    dialog.cancel()


@scenario(96, 144)
def opens_where_the_file_tells(run):
    run.put("TarnwickStudio.ini", b"tfeL 20\n poT 90\nhtdW 1600\nthgH 990\n")
    dialog = run.open(after=CANCELLED)
    # Its top is written, but never read.
    equal(dialog.window.frame, [20, 100, 1620, 1090])
    dialog.wait_pane(dialog.window_at(0, 0))
    assert_tidy(dialog)
    dialog.window.shot("dialog-large")
    dialog.cancel()
    equal([run.ini()[key] for key in ("tfeL", "htdW", "thgH")], [20, 1600, 990])


@scenario(96, 144)
def shows_a_photograph(run):
    """For the eye: in the smallest window and in a large one."""
    tool = shutil.which("convert")
    if tool is None:
        print("  no convert here (imagemagick), so no photograph is shown")
        return
    sample = os.path.join(os.path.dirname(__file__), "..", "..", "docs", "sample.jpg")
    photograph = subprocess.run([tool, sample, "-strip", "-depth", "8", "ppm:-"],
                                stdout=subprocess.PIPE, check=True).stdout
    width, height = map(int, photograph.split(None, 3)[1:3])
    for name, ini in (("smallest", b""), ("large", b"tfeL 20\nhtdW 1600\nthgH 1000\n")):
        run.put("TarnwickStudio.ini", ini)
        dialog = run.open(width, height, picture=photograph, after=CANCELLED)
        dialog.wait_pane(dialog.window_at(0, 0))
        assert_tidy(dialog)
        dialog.window.shot(f"photograph-{name}")
        dialog.cancel()


@scenario(96, 144)
def is_resized_and_remembers_it(run):
    dialog = run.open(after=["expect setting WindowWidth 1203", "expect setting WindowHeight 804"])
    left, top, right, bottom = dialog.window.frame
    # Smaller than it may be: nothing changes.
    dialog.drag_frame((right - 2, top + 300), (right - 300, top + 300), [left, top, right, bottom])
    dialog.drag_frame((left + 300, bottom - 2), (left + 300, top + 90), [left, top, right, bottom])
    dialog.drag_frame((right - 2, bottom - 2), (right + 278, bottom + 98),
                      [left, top, right + 280, bottom + 100])
    dialog.look()
    equal(dialog[1002].size[0] % 4, 0)
    dialog.wait_pane(dialog.window_at(0, 0))
    dialog.drag_frame((left + 300, top + 8), (left + 340, top + 28),
                      [left + 40, top + 20, right + 320, bottom + 120])
    dialog.look().ok()
    ini = run.ini()
    equal([ini[key] for key in ("tfeL", "poT", "htdW", "thgH")], [left + 40, top + 20, 1203, 804])


@scenario()
def is_maximized_and_restored(run):
    dialog = run.open(after=CANCELLED)
    before = dialog.window.frame
    for _ in range(2):
        left, top, right, _ = dialog.window.look().frame
        run.screen.click(left + 300, top + 10, times=2)
        wait_for(lambda: dialog.window.look().frame != [left, top, right, dialog.window.frame[3]],
                 "the frame stays")
        dialog.look()
        dialog.wait_pane(dialog.window_at(0, 0))
    equal(dialog.window.frame, before)
    dialog.cancel()


@scenario()
def ok_applies_to_the_whole_picture(run):
    dialog = run.open(after=["expect changed"])
    dialog.wait_pane(dialog.window_at(0, 0))
    dialog.ok()
    equal(run.result().rgb(), run.aged().rgb())


@scenario()
def the_filter_is_repeated_without_its_dialog(run):
    """By the editor's command: what was set by hand, once more on what has come of it."""
    dialog = run.open(width=300, height=220, after=["repeat last"])
    page = Page(dialog, 1)
    page.click(page[1021], 6, 0.5)
    dialog.wait_pane(dialog.window_at(0, 0, 1, "WashInvert1=1"))
    dialog.ok()
    run.aged("WashInvert1=1")
    once = shutil.copy(run.file("aged.ppm"), run.file("once.ppm"))
    twice = run.aged("WashInvert1=1", picture=once).rgb()
    equal(run.result().rgb() == twice, True)


@scenario()
def enter_is_ok(run):
    dialog = run.open(width=400, height=300, after=["expect changed"])
    run.screen.key("Return")
    run.finish()


@scenario()
def escape_cancels(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    run.screen.key("Escape")
    run.finish()


@scenario()
def box_of_the_title_cancels(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    _, top, right, _ = dialog.window.frame
    run.screen.click(right - 14, top + 12)
    run.finish()


@scenario()
def the_system_closes_it_by_cancel(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    run.screen.key("alt+F4")
    run.finish()


@scenario()
def about_box_opens_and_closes(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    dialog[1130].click()
    about = run.program.window("About Tarnwick Studio")
    about.shot("about-box")
    equal(dialog.window.look().enabled, False)
    run.screen.key("Return")
    wait_for(about.gone, "the box stays")
    wait_for(lambda: dialog.window.look().enabled, "the dialog stays disabled")
    dialog.cancel()


@scenario()
def header_follows_the_pointer(run):
    """Where the art is there, each button of the header changes under the pointer."""
    dialog = run.open(width=400, height=300, after=CANCELLED)
    for number in (1126, 1127, 1129, 1130):
        button, idle = dialog[number], dialog[number].picture().rgb()
        button.move()
        wait_for(lambda: button.picture().rgb() != idle, f"{number} does not follow")
        run.screen.move(*dialog.window.place(60, 400))
        wait_for(lambda: button.picture().rgb() == idle, f"{number} does not let go")
    dialog.cancel()


@scenario()
def opens_often_and_leaves_nothing(run):
    """The host opens and cancels it by itself, with ten refreshes each time."""
    run.start(width=16, height=12, lines=["open 200 dialogs"])
    # Half a second each, and more beside other tests.
    equal(run.program.wait(400), 0)


def add_arguments(parser):
    for name in ("host", "module", "data", "lists", "fresh-view"):
        parser.add_argument("--" + name, required=True)


if __name__ == "__main__":
    run(__doc__, HostRun, add_arguments)
