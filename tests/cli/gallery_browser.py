"""Uses the page of a gallery as visitors do, in Chromium: see gallery_data.sh
for the looks that are on it.

Usage: gallery_browser.py DIR
"""
import json
import os
import sys
import traceback

import chromium

CHECKS = []
SITE = os.path.abspath(sys.argv[1])
ADDRESS = "file://" + SITE + "/index.html"
EVIL = "O'Hara & \"Sons\" <b>bold<"
VISIBLE = """[...document.querySelectorAll(".card")].filter((card) => card.checkVisibility())
    .map((card) => card.querySelector(".name").textContent)"""


def check(function):
    CHECKS.append(function)
    return function


def equal(got, want):
    assert got == want, f"{got!r} is not {want!r}"


def text(page, selector):
    return page.run(f"document.querySelector({json.dumps(selector)}).textContent")


def visible(page):
    return sorted(page.run(VISIBLE))


def choose(page, selector, value):
    page.run(f"""(() => {{ const box = document.querySelector("{selector}"); box.value = {json.dumps(value)};
        box.dispatchEvent(new Event("input", {{bubbles: true}})); }})()""")


def open_look(page, look):
    page.run(f"document.querySelector('[data-id={look}] a').focus()")
    page.press("Enter")
    page.wait_for("document.querySelector('#viewer').open")


def shown_at(page, fraction):
    """Which picture is on top at a place along the middle of the viewer."""
    return page.run(f"""(() => {{
        const box = document.querySelector("#compare").getBoundingClientRect();
        return document.elementsFromPoint(box.left + {fraction} * box.width, box.top + box.height / 3)
            .find((element) => element.tagName === "IMG").className; }})()""")


@check
def loads_whole_and_asks_nobody(page):
    page.run("scrollTo(0, document.body.scrollHeight)")
    page.wait_for("[...document.images].every((image) => image.closest('dialog') || image.naturalWidth)")
    equal(page.run("window.hacked"), None)
    strangers = [url for url in page.requests
                 if url != "about:blank" and not url.startswith(("file://" + SITE, "data:"))]
    equal(strangers, [])


@check
def names_are_text(page):
    assert EVIL in visible(page) and "script><script>hacked=1;<!--" in visible(page)
    equal(page.run("document.querySelectorAll('.card b, .card script').length"), 0)


@check
def filters_by_kind_set_and_effect(page):
    everything = visible(page)
    equal(text(page, "#count"), "9 looks")
    page.click("label[for=kind-user]")
    equal(visible(page), ["A b"])
    equal(text(page, "#count"), "1 of 9 looks")
    # Headings of nothing go too.
    equal(page.run("""[...document.querySelectorAll("h2")].filter((h) => h.checkVisibility())
        .map((h) => h.textContent)"""), ["Your own"])
    page.click("#clear")
    equal(visible(page), everything)
    choose(page, "#set", "Forge & <Sons>")
    equal(visible(page), ["Café $(touch hacked)", "Thin"])
    choose(page, "#effect", "Metals")
    page.click("label[for=kind-wash]")
    equal(visible(page), ["Thin"])
    choose(page, "#effect", "Woods")
    equal(visible(page), [])
    page.click("#clear-nothing")
    equal(visible(page), everything)


@check
def finds_by_words(page):
    page.press("/")
    page.type("cafe WOOD")
    equal(visible(page), ["Café $(touch hacked)"])
    equal(page.run("document.querySelector('#search').value"), "cafe WOOD")
    choose(page, "#search", "oak hide")
    equal(visible(page), ["Hide"])
    choose(page, "#search", "no such look")
    equal(text(page, "#count"), "0 of 9 looks")
    assert page.run("document.querySelector('#nothing').checkVisibility()")


@check
def keyboard_goes_through_the_looks(page):
    page.click("label[for=kind-basic]")
    names = page.run(VISIBLE)
    open_look(page, "basic-a-b")
    at = names.index("A b")
    equal(text(page, "#viewer-name"), "A b")
    equal(text(page, "#viewer-place"), f"{at + 1} of {len(names)}")
    for key, by in (("ArrowRight", 1), ("ArrowRight", 2), ("ArrowLeft", 1)):
        page.press(key)
        page.wait_for(f"document.querySelector('#viewer-name').textContent ==="
                      f" {json.dumps(names[(at + by) % len(names)])}")
    page.wait_for("document.querySelector('#after').naturalWidth > 0")
    page.press("Escape")
    page.wait_for("!document.querySelector('#viewer').open && location.hash.length < 3")
    equal(page.run("document.activeElement.closest('.card').querySelector('.name').textContent"),
          names[(at + 1) % len(names)])


@check
def slider_parts_before_and_after(page):
    open_look(page, "wash-thin")
    equal([shown_at(page, 0.3), shown_at(page, 0.7)], ["before", "after"])
    # The keyboard, on the slider: it moves, and the look stays.
    page.run("document.querySelector('#slider').focus()")
    page.press("ArrowRight")
    equal(page.run("document.querySelector('#slider').value"), "51")
    equal(text(page, "#viewer-name"), "Thin")
    page.press("End")
    equal([shown_at(page, 0.3), shown_at(page, 0.95)], ["before", "before"])
    # The mouse, anywhere on the picture.
    left, top, width, height = page.run("""(() => { const box =
        document.querySelector("#compare").getBoundingClientRect();
        return [box.left, box.top, box.width, box.height]; })()""")
    page.mouse("Pressed", left + 0.9 * width, top + height / 2)
    page.mouse("Moved", left + 0.2 * width, top + height / 2)
    page.mouse("Released", left + 0.2 * width, top + height / 2)
    page.mouse("Moved", left + 0.6 * width, top + height / 2)
    equal([shown_at(page, 0.1), shown_at(page, 0.3)], ["before", "after"])
    page.press("b")
    equal([shown_at(page, 0.05), shown_at(page, 0.95)], ["before", "before"])
    page.press("b")
    equal([shown_at(page, 0.05), shown_at(page, 0.95)], ["after", "after"])


@check
def viewer_shows_what_the_picture_is(page):
    open_look(page, "basic-o-hara-sons-b-bold")
    equal(text(page, "#viewer-name"), EVIL)
    page.wait_for("document.querySelector('#after').complete")
    # 960 pixels come nearest to 400 at scale 2; the page has its shape.
    equal(page.run("[document.querySelector('#after').naturalWidth,"
                   " document.querySelector('.before').naturalWidth]"), [480, 480])
    ratio = page.run("(() => { const box = document.querySelector('#compare')"
                     ".getBoundingClientRect(); return box.width / box.height; })()")
    assert abs(ratio - 1.5) < 0.01, ratio


@check
def copies_the_command(page):
    page.allow("clipboardReadWrite", "clipboardSanitizedWrite")
    open_look(page, "basic-o-hara-sons-b-bold")
    command = page.run("JSON.parse(document.querySelector('#gallery-data').textContent).looks"
                       ".find((look) => look.id === 'basic-o-hara-sons-b-bold').command")
    equal(text(page, "#command"), command)
    page.click("#copy")
    page.wait_for("document.querySelector('#copy').textContent === 'Copied'")
    equal(page.run("navigator.clipboard.readText()"), command)
    equal(text(page, "#said"), "Command line copied")


@check
def address_keeps_the_look_and_back_closes(page):
    page.open(ADDRESS + "#/surface-hide")
    equal(text(page, "#viewer-name"), "Hide")
    page.click("#close")
    page.wait_for("!document.querySelector('#viewer').open && location.hash === '#looks'")
    open_look(page, "wash-thin")
    page.press("ArrowRight")
    page.wait_for("location.hash !== '#/wash-thin'")
    page.run("history.back()")
    page.wait_for("!document.querySelector('#viewer').open && document.readyState === 'complete'")
    page.open(ADDRESS + "#/no-such-look")
    equal(page.run("document.querySelector('#viewer').open"), False)


@check
def every_control_has_a_name(page):
    open_closed = [page.unnamed_controls()]
    open_look(page, "wash-thin")
    equal(open_closed + [page.unnamed_controls()], [[], []])


@check
def fits_a_phone(page):
    page.resize(360, 740, phone=True)
    page.open(ADDRESS)
    over = "Math.max(document.scrollingElement.scrollWidth, document.querySelector('#viewer').scrollWidth) - innerWidth"
    assert page.run(over) <= 0, page.run(over)
    page.tap(".card a")
    page.wait_for("document.querySelector('#viewer').open")
    assert page.run(over) <= 0, page.run(over)
    small = page.run("""[...document.querySelectorAll(".viewer-bar button")].filter((button) => {
        const box = button.getBoundingClientRect(); return box.width < 40 || box.height < 40; }).length""")
    equal(small, 0)
    page.drag_finger("#compare", 0.5, 0.15)
    equal([shown_at(page, 0.1), shown_at(page, 0.4)], ["before", "after"])


@check
def colours_follow_the_system_or_the_choice(page):
    dark = "(parseInt(getComputedStyle(document.body).backgroundColor.match(/\\d+/)[0]) < 128)"
    page.prefer(prefers_color_scheme="light")
    page.wait_for("!" + dark)
    page.prefer(prefers_color_scheme="dark")
    page.wait_for(dark)
    page.click("#theme")
    page.wait_for("!" + dark)
    page.open(ADDRESS)
    equal(page.run(dark), False)
    page.click("#theme")
    page.wait_for(dark)
    page.prefer(prefers_color_scheme="light")
    equal(page.run(dark), True)
    page.click("#theme")
    page.wait_for("!" + dark)


@check
def works_without_a_script(page):
    page.disable_scripts()
    page.open(ADDRESS)
    equal(page.run("getComputedStyle(document.querySelector('.filters')).display"), "none")
    equal(len(visible(page)), 9)
    page.click(".card[data-id=wash-thin] a")
    page.wait_for("location.href.endsWith('/large/wash-thin.jpg')")


failed = 0
program = chromium.find()
for function in CHECKS:
    with chromium.Chromium(program) as browser:
        try:
            browser.open(ADDRESS)
            function(browser)
            equal(browser.errors, [])
        except Exception:
            failed += 1
            print(f"-- {function.__name__}", file=sys.stderr)
            traceback.print_exc()
            if os.environ.get("TARNWICK_SHOTS"):
                browser.screenshot(os.path.join(os.environ["TARNWICK_SHOTS"],
                                                function.__name__ + ".png"))
print(f"{len(CHECKS) - failed} passed, {failed} failed")
sys.exit(1 if failed else 0)
