"""The About box: its links and its button for the sound, by pointer and by keys."""
import os

from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
ABOUT, MANUAL, EXAMPLES, TERMS, SOUND = 1130, 1505, 1506, 1507, 1508
TITLE = "About Tarnwick Studio"


def put_pages(run):
    folder = os.path.join(run.folder, "Tarnwick Studio", "Help")
    os.makedirs(folder, exist_ok=True)
    for page in ("index.html", "presets.html"):
        with open(os.path.join(folder, page), "w") as file:
            file.write("<!doctype html><title>A page</title>\n")
    run.put("LICENSE.txt", b"The terms.\r\n")


def open_box(run, dialog):
    dialog[ABOUT].click()
    box = run.program.window(TITLE)
    wait_for(lambda: run.screen.focused() == TITLE, "the box gets no keys")
    return box


def close(run, dialog, box):
    run.screen.key("Escape")
    wait_for(box.gone, "the box stays")
    wait_for(lambda: run.screen.focused() == "Tarnwick Studio", "the dialog gets no keys")


def opened(run, before):
    return [os.path.basename(page) for page in run.session.pages()[before:]]


def assert_tidy(box):
    left, top, right, bottom = box.client
    shown = [item for item in box.children() if item.visible]
    for index, one in enumerate(shown):
        a = one.frame
        assert a[0] >= left and a[1] >= top and a[2] <= right and a[3] <= bottom, f"{one.id} is cut"
        for other in shown[index + 1:]:
            b = other.frame
            assert not (a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]), \
                f"{one.id} lies on {other.id}"


@scenario(96, 120, 144, 192, 216)
def about_box_is_tidy(run):
    dialog = run.open(width=64, height=48, after=CANCELLED)
    put_pages(run)
    box = open_box(run, dialog)
    assert box.item(1).has_focus()
    assert_tidy(box)
    box.shot("about")
    close(run, dialog, box)
    # On fine screens the button for that is beyond the edge.
    run.screen.key("Escape")
    run.finish()


@scenario()
def links_of_the_about_box_open_files(run):
    """Each by a click and by keys; one whose file is missing is not there."""
    dialog = run.open(width=64, height=48, after=CANCELLED)
    box = open_box(run, dialog)
    equal([box.item(link).visible for link in (MANUAL, EXAMPLES, TERMS)], [False] * 3)
    close(run, dialog, box)
    put_pages(run)
    box, before = open_box(run, dialog), len(run.session.pages())
    equal([box.item(link).visible for link in (MANUAL, EXAMPLES, TERMS)], [True] * 3)
    pages = []
    for link, page in ((MANUAL, "index.html"), (EXAMPLES, "presets.html")):
        for action in (box.item(link).click, lambda: run.screen.key("Return"),
                       lambda: run.screen.key("space")):
            action()
            pages.append(page)
            wait_for(lambda: opened(run, before) == pages, lambda: f"opened {opened(run, before)}")
    # Let go of beside it, a press does nothing; the box is still there.
    box.item(MANUAL).drag((0.3, 0.5), (0.3, 60))
    box.item(MANUAL).wait_focus()
    # From link to link, to the buttons, and round.
    for item in (EXAMPLES, TERMS, SOUND, 1, MANUAL):
        run.screen.key("Tab")
        box.item(item).wait_focus()
    equal(opened(run, before), pages)
    close(run, dialog, box)
    dialog.cancel()


@scenario()
def sound_is_turned_off_and_on(run):
    run.put("TarnwickStudio.ini", b"nSsU 1\ntlsR 77\n")
    for before, caption, other in ((1, "Disable SFX", "Enable SFX"),
                                   (0, "Enable SFX", "Disable SFX")):
        dialog = run.open(width=64, height=48, after=CANCELLED)
        box = open_box(run, dialog)
        button = box.item(SOUND)
        equal(button.text, caption)
        equal(button.tips(), ["Use sound for Auto button"])
        button.click()
        button.wait_text(other)
        run.screen.key("space")
        button.wait_text(caption)
        run.screen.key("space")
        button.wait_text(other)
        close(run, dialog, box)
        # The box shows it again, and Cancel keeps it too.
        box = open_box(run, dialog)
        equal(box.item(SOUND).text, other)
        close(run, dialog, box)
        dialog.cancel()
        equal(run.ini()["nSsU"], 1 - before)
        equal(run.ini()["tlsR"], 77)


@scenario()
def about_box_comes_without_a_run(run):
    """From the host's own list of modules: nothing but the box knows of the file."""
    run.put("TarnwickStudio.ini", b"tfeL 33\nhtdW 1000\nsweN http://127.0.0.1:9/ ;\n")
    for want in (0, 1):
        run.start(64, 48, lines=["dialog by-hand", "about"])
        box = run.program.window(TITLE)
        wait_for(lambda: run.screen.focused() == TITLE, "the box gets no keys")
        box.item(SOUND).click()
        box.item(SOUND).wait_text("Enable SFX" if want == 0 else "Disable SFX")
        run.screen.key("Escape")
        run.finish()
        with open(run.file("TarnwickStudio.ini")) as file:
            lines = [line.split(" \t")[0] for line in file]
        for line in ("tfeL 33", "htdW 1000", f"nSsU {want}", "sweN http://127.0.0.1:9/"):
            assert line in lines, f"no {line!r} in {lines}"
    # Looked at only, the file stays as it is.
    run.put("TarnwickStudio.ini", b";as it is\nnSsU 0\n")
    run.start(64, 48, lines=["dialog by-hand", "about"])
    run.program.window(TITLE)
    wait_for(lambda: run.screen.focused() == TITLE, "the box gets no keys")
    run.screen.key("Return")
    run.finish()
    with open(run.file("TarnwickStudio.ini"), "rb") as file:
        equal(file.read(), b";as it is\nnSsU 0\n")
