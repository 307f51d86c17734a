"""The page of controls, with a real pointer and real keys.

Usage: control_page.py --wine TOOL --agent EXE --page EXE --shots FOLDER [NAME...]
"""
import math
import os

from scenarios import equal, near, run, scenario
from screen import wait_for

# The skins of the page: frames of one pixel, flat inside.
NORMAL, HOVER, PRESSED = (200, 60, 60), (60, 160, 60), (60, 60, 200)
DISABLED, CHECKED_HOVER = (150, 150, 150), (220, 200, 60)
IMAGE_PLACE = (0.25, 0.3)  # in a picture button, beside the letter
TBM_GETPOS, UDM_GETPOS = 0x400, 0x468


class Page:
    def __init__(self, session, arguments, name):
        self._log = os.path.join(session.folder, f"{name}-{session.dpi}dpi.log")
        self.session, self.screen, self._read = session, session.screen, 0
        self.program = session.start(os.path.abspath(arguments.page), self._log)
        self.window = self.program.window("Control page")
        self.items = {child.id: child for child in self.window.children()}
        wait_for(lambda: self.screen.focused() == "Control page", "the page gets no keys")
        self.settle()

    def __getitem__(self, number):
        return self.items[number]

    def close(self):
        if self.program.alive():
            self.program.end()

    def told(self):
        """Whole lines of the log since the last call."""
        with open(self._log) as file:
            file.seek(self._read)
            lines = file.read()
        whole = lines[:lines.rfind("\n") + 1]
        self._read += len(whole)
        return whole.splitlines()

    def wait_told(self, *want):
        """Just these lines, once they are there."""
        lines = []

        def look():
            lines.extend(self.told())
            return len(lines) >= len(want)
        wait_for(look, lambda: f"told {lines}, not {want}")
        equal(lines, list(want))

    def settle(self):
        """What the page has told once all that was done before has come through."""
        lines = []
        self.screen.key("F11")

        def look():
            lines.extend(self.told())
            return "mark" in lines
        wait_for(look, "the page does not come to rest")
        return [line for line in lines if line != "mark"]

    def silent(self):
        equal(self.settle(), [])

    def tracked(self, slider, value):
        """Wine's trackbar may report the end of a track twice."""
        equal(set(self.settle()), {f"command {slider} 0 1 {value}.00"})

    def position(self, slider):
        """Of a bound slider: trackbar, up-down, edit field."""
        trackbar = next(one for one in self[slider].children() if one.id == 333)
        spin = self[slider + 2].send(UDM_GETPOS) & 0xFFFF
        return (trackbar.send(TBM_GETPOS), spin - 0x10000 if spin > 0x7FFF else spin,
                self.number(slider + 1))

    def number(self, edit):
        """None while it is half typed."""
        try:
            return int(self[edit].look().text)
        except ValueError:
            return None

    def disable(self):
        self[90].click(8, 0.5)
        wait_for(lambda: not self[150].look().enabled, "the page is not disabled")


@scenario(96, 144)
def looks_whole(page):
    """For the eye; and that nothing is left over or cut off at the page's edges."""
    page.window.shot("control-page")
    seen = page.window.picture()
    for edge in (seen.crop(0, 0, seen.width, 4), seen.crop(0, 0, 4, seen.height),
                 seen.crop(seen.width - 4, 0, seen.width, seen.height),
                 seen.crop(0, seen.height - 4, seen.width, seen.height)):
        equal(len(edge.colors()), 1)
    page.disable()
    page.settle()
    page.window.shot("control-page-disabled")


# Bound sliders

def drag_thumb(page, slider, target, lets_go=True):
    """From where the thumb stands to a fraction of the slider's width."""
    width = page[slider].size[0]
    # 13 pixels at each end are the thumb's and the channel's.
    begin = 13 + (page.position(slider)[0] + 100) * (width - 26) // 200
    page[slider].drag((begin, 0.5), (target, 0.5), lets_go=lets_go)


@scenario(96, 144)
def slider_tells_when_its_drag_ends(page):
    drag_thumb(page, 100, 0.25, lets_go=False)
    wait_for(lambda: page.position(100)[2] < 0, "the edit field does not follow")
    equal(len(set(page.position(100))), 1)
    page.silent()
    page.screen.move(*page[100].place(0.75, 0.5))
    wait_for(lambda: page.position(100)[2] > 0, "the edit field does not follow")
    value = page.position(100)[2]
    page.screen.release()
    page.tracked(100, value)
    # Let go outside, far beyond its end.
    drag_thumb(page, 100, 900)
    page.tracked(100, 100)
    equal(page.position(100), (100, 100, 100))


@scenario()
def slider_goes_by_keys(page):
    page[100].click(0.66, 0.5)
    page.settle()
    for key, value in (("End", 100), ("Left", 99), ("Prior", 89), ("Home", -100), ("Right", -99),
                       ("Next", -89)):
        page.screen.key(key)
        page.tracked(100, value)
        equal(page.position(100), (value, value, value))


@scenario()
def slider_steps_by_a_click_beside_its_thumb(page):
    page[100].click(0.1, 0.5)
    page.tracked(100, 20)
    page[100].click(0.95, 0.5)
    page.tracked(100, 30)


@scenario()
def slider_follows_its_edit_field_and_arrows(page):
    edit, spin = page[101], page[102]
    edit.click(times=2)
    page.screen.type("-55")
    page.screen.key("Tab")
    wait_for(lambda: page.position(100) == (-55, -55, -55), lambda: f"{page.position(100)}")
    page.settle()
    spin.click(0.5, 0.25)
    wait_for(lambda: page.position(100) == (-54, -54, -54), lambda: f"{page.position(100)}")
    spin.click(0.5, 0.75, times=2)
    wait_for(lambda: page.position(100) == (-56, -56, -56), lambda: f"{page.position(100)}")
    edit.click()
    edit.wait_focus()
    page.screen.key("Up", "Up", "Up")
    wait_for(lambda: page.position(100) == (-53, -53, -53), lambda: f"{page.position(100)}")


@scenario()
def slider_snaps_within_its_distance(page):
    """Ten either side of 0 are drawn to it; 10 itself is not."""
    page[110].click(0.45, 0.5)
    page.tracked(110, 20)
    page.screen.key("Prior")
    page.tracked(110, 10)
    page.screen.key("Left")
    page.tracked(110, 0)
    equal(page.position(110), (0, 0, 0))
    page.screen.key("Right")  # 1, and back
    page.tracked(110, 0)


@scenario()
def slider_is_disabled_as_a_whole(page):
    page.disable()
    for number in (100, 101, 102):
        equal(page[number].look().enabled, False)
    page[100].click(0.1, 0.5)
    page[102].click(0.5, 0.25)
    page.silent()
    equal(page.position(100), (30, 30, 30))


# Sliders that paint themselves: five pixels at each end are margins

def value_at(place, length, low=0.0, high=100.0):
    return min(max((place - 5) / ((length - 10) / 100), low), high)


@scenario(96, 144)
def gauge_is_dragged(page):
    width, _ = page[120].size
    page[120].press(0.25, 0.5)
    page.silent()
    first = int(0.25 * width)
    # The pointer's base, on the far side, stands under the mouse.
    page[120].wait_color((0, 0, 0), first, page[120].size[1] - 1)
    for place in (0.5, 0.75):
        page.screen.move(*page[120].place(place, 0.5))
        page.wait_told("hscroll 0 0")
    page.screen.release()
    page.wait_told("hscroll 0 0", f"command 120 0 0 {value_at(int(0.75 * width), width):.2f}")
    # Let go outside: the nearer end.
    page[120].drag((0.5, 0.5), (-300, -20), lets_go=False)
    equal(set(page.settle()), {"hscroll 0 0"})
    page.screen.release()
    page.wait_told("hscroll 0 0", "command 120 0 0 0.00")


@scenario()
def line_tells_at_each_move(page):
    width, _ = page[121].size
    page[121].press(20, 0.5)
    page.silent()
    for place in (60, 100):
        page.screen.move(*page[121].place(place, 0.5))
        page.wait_told("hscroll 0 0", f"command 121 0 1 {value_at(place, width):.2f}")
    page.screen.release()
    page.wait_told("hscroll 0 0", f"command 121 0 0 {value_at(100, width):.2f}")
    # A pointer that passes over it without a button says nothing.
    page.screen.do("mousemove", *page[121].place(30, 0.5), "mousemove", *page[121].place(40, 0.5))
    page.silent()


@scenario()
def limited_gauge_keeps_to_its_limits(page):
    page[122].drag((0.5, 0.5), (0.5, 0.99))
    equal(page.settle()[-1], "command 122 0 0 70.00")
    page[122].drag((0.5, 0.5), (0.5, -40))
    equal(page.settle()[-1], "command 122 0 0 20.00")


# Rotors

def angles(line):
    """Azimuth, altitude and the two offsets of a rotor's line."""
    return [float(word) for word in line.split()[4:]]


@scenario(96, 144)
def ball_turns_with_the_pointer(page):
    width, height = page[130].size
    x, y = width // 2, height // 2
    page[130].press(x + 10, y - 10)
    # An eighth of a turn, up and right; the press takes a radius smaller by two.
    page[131].wait_text("45.00")
    near(float(page[132].look().text), math.degrees(math.acos(math.hypot(10, 10) / (x - 2))), 0.01)
    page.silent()
    page.screen.move(*page[130].place(x - 12, y - 5))
    page.silent()
    page.screen.release()
    (line,) = page.settle()
    assert line.startswith("command 130 0 0 "), line
    azimuth, altitude, _, _ = angles(line)
    near(azimuth, 180 - math.degrees(math.atan2(5, 12)), 0.01)
    near(altitude, math.degrees(math.acos(math.hypot(12, 5) / x)), 0.01)
    equal(page[131].look().text, f"{azimuth:.2f}")
    equal(page[132].look().text, f"{altitude:.2f}")


@scenario(96, 144)
def ball_is_bright_where_the_light_is(page):
    width, height = page[130].size
    x, y, step = width // 2, height // 2, width // 4
    for dx, dy in ((step, 1), (-step, 1), (1, step), (1, -step)):
        page[130].click(x + dx, y + dy)
        wait_for(lambda: page[130].at(x + dx, y + dy)[0] > 200, "dark under the light")
        assert page[130].at(x - dx, y - dy)[0] < 150, "bright on the far side"
    equal(page[130].at(0, 0), page.window.at(2, 2))  # the dialog's face in the corner


@scenario(96, 144)
def ball_keeps_the_pointer_at_its_edge(page):
    width, height = page[130].size
    x, y = width // 2, height // 2
    page[130].drag((x + 5, y + 1), (width + 200, y - 150))
    azimuth, altitude, _, _ = angles(page.settle()[-1])
    # In the corner at the top right: the place is clamped to the control's size.
    near(azimuth, math.degrees(math.atan2(y, width - x)), 0.01)
    near(altitude, 0, 0.01)


@scenario(96, 144)
def offset_ball_is_a_point_of_a_square(page):
    width, height = page[140].size
    x, y = width // 2, height // 2
    # Half its width counts in both directions, and it is lower than wide.
    up, down = y / x * 100, (height - y) / x * 100
    for place, want in (((x + 300, y + 1), (100, 0)), ((x - 300, y + 1), (-100, 0)),
                        ((x + 1, y - 300), (0, up)), ((x + 1, y + 300), (0, -down))):
        page[140].drag((x + 2, y + 2), place)
        got = angles(page.settle()[-1])[2:]
        # A pixel beside the axis, for on it an angle stays.
        near(got[0], want[0], 100 / x + 0.5)
        near(got[1], want[1], 100 / x + 0.5)
        equal([page[141].look().text, page[142].look().text], [f"{one:.2f}" for one in got])
    page[140].click(x, y)
    equal(angles(page.settle()[-1])[1], 90)
    page[140].wait_color((0, 0, 0), x, y)  # the cross


# Swatch

IDLE_OUTLINE = (75 + 127, 135 // 2, 215 // 2)  # of (180, 120, 40)
HOT_OUTLINE = (75, 135, 215)


@scenario(96, 144)
def swatch_shows_the_pointer(page):
    page[150].wait_color((180, 120, 40))
    equal(page[150].at(0, 0.5), IDLE_OUTLINE)
    page[150].move()
    page[150].wait_color(HOT_OUTLINE, 0, 0.5)
    page.screen.move(*page.window.place(3, 3))
    page[150].wait_color(IDLE_OUTLINE, 0, 0.5)
    # Pressed inside, let go outside: nothing is asked.
    page[150].press()
    page.screen.move(*page.window.place(3, 3))
    page[150].wait_color(IDLE_OUTLINE, 0, 0.5)
    page.screen.release()
    page.silent()
    equal(len([one for one in page.program.windows() if one.class_name == "#32770"]), 0)


@scenario()
def swatch_has_a_colour_chosen(page):
    for button in (1, 3):
        page[150].click(button=button)
        picker = page.program.window("Color")
        page.screen.key("Escape")
        wait_for(picker.gone, "the picker stays")
        page.silent()
        page[150].wait_color(IDLE_OUTLINE, 0, 0.5)
    page[150].click()
    picker = page.program.window("Color")
    picker.shot("color-picker")
    # The first of the system's basic colours.
    picker.item(720).click(10, 8)
    page.screen.key("Return")
    wait_for(picker.gone, "the picker stays")
    page.wait_told("command 150 0 0 255 128 128")
    page[150].wait_color((255, 128, 128))


@scenario()
def swatch_is_smaller_when_disabled(page):
    page.disable()
    page.settle()
    equal(page[150].at(4, 3), (180, 120, 40))
    equal(page[150].at(3, 3), page.window.at(2, 2))
    page[150].click()
    page.silent()


# Buttons and labels

@scenario(96, 144)
def button_has_three_looks_and_fires_on_release(page):
    page[160].wait_color(NORMAL, 2, 2)
    page[160].move()
    page[160].wait_color(HOVER, 2, 2)
    page[160].press()
    page[160].wait_color(PRESSED, 2, 2)
    page[160].wait_focus()
    page.silent()
    page.screen.release()
    page.wait_told("command 160 0 0 0")
    page.screen.move(*page.window.place(3, 3))
    page[160].wait_color(NORMAL, 2, 2)
    # It fires wherever it is let go.
    page[160].press()
    page.screen.move(*page.window.place(3, 3))
    page[160].wait_color(PRESSED, 2, 2)
    page.screen.release()
    page.wait_told("command 160 0 0 0")
    # Its window is smaller than its picture: the frame at the right is not seen.
    page[160].wait_color(NORMAL, page[160].size[0] - 1, 2)


@scenario()
def toggle_stays_down(page):
    page[161].click()
    page.wait_told("command 161 0 0 1")
    page.screen.move(*page.window.place(3, 3))
    page[161].wait_color(PRESSED, 2, 2)
    page[161].click()
    page.wait_told("command 161 0 0 0")
    page.screen.move(*page.window.place(3, 3))
    page[161].wait_color(NORMAL, 2, 2)


@scenario(96, 144)
def picture_buttons_have_a_picture_for_each_state(page):
    push, check = page[170], page[171]
    for button in (push, check):
        button.wait_color(NORMAL, *IMAGE_PLACE)
        button.move()
        button.wait_color(HOVER, *IMAGE_PLACE)
        page.screen.move(*page.window.place(3, 3))
        button.wait_color(NORMAL, *IMAGE_PLACE)
    push.click()
    page.wait_told("command 170 0 -1")
    check.click()
    page.wait_told("command 171 0 -1")
    page.screen.move(*page.window.place(3, 3))
    check.wait_color(PRESSED, *IMAGE_PLACE)
    check.move()
    check.wait_color(CHECKED_HOVER, *IMAGE_PLACE)
    page.screen.move(*page.window.place(3, 3))
    check.wait_color(PRESSED, *IMAGE_PLACE)
    page.disable()
    push.wait_color(DISABLED, *IMAGE_PLACE)
    check.wait_color(DISABLED, *IMAGE_PLACE)


def has_color(control, color):
    return color in control.picture().colors()


@scenario(96, 144)
def labels_follow_the_pointer(page):
    normal, hover, active = (127, 127, 127), (180, 188, 180), (255, 255, 255)
    label, chosen, dead = page[182], page[183], page[184]
    assert has_color(label, normal) and has_color(chosen, active) and has_color(dead, active)
    label.move()
    wait_for(lambda: has_color(label, hover), "the label does not follow")
    page.screen.move(*page.window.place(3, 3))
    wait_for(lambda: has_color(label, normal), "the label does not let go")
    label.click()
    page.wait_told("command 182 0 0")
    # The mark of the choice stays with pointer and click.
    chosen.click()
    page.wait_told("command 183 0 0")
    page.screen.move(*page.window.place(3, 3))
    page.silent()
    assert has_color(chosen, active)
    dead.click()
    page.silent()
    page.disable()
    wait_for(lambda: has_color(label, (100, 100, 100)), "not painted as disabled")
    label.click()
    page.silent()


@scenario()
def links_are_clicked(page):
    assert has_color(page[180], (0, 0, 255))
    assert has_color(page[181], (0, 0, 0))
    page[180].click(20, 0.5)
    page.wait_told("command 180 0 0")
    page[181].click(20, 0.5)
    page.silent()


@scenario(96, 144)
def tool_tips_come_below_their_control(page):
    texts = {160: "Apply random effects", 150: "Change wash color",
             130: "Adjust the lighting direction applied to surface effect"}
    for number, text in texts.items():
        equal(page[number].tips(), [text])
    for number in (150, 161, 130):
        page[number].move()

        def tip():
            return next((one for one in page.program.windows()
                         if one.class_name == "tooltips_class32"), None)
        seen = wait_for(tip, "no tip comes")
        middle = (seen.frame[0] + seen.frame[2]) / 2
        near(middle, page[number].place()[0], 40)
        # A hundred pixels of text, and the tip's own margins.
        if number != 161:
            assert seen.frame[2] - seen.frame[0] <= 120, seen.frame
        page.screen.picture(*page.window.frame[:2], page.window.frame[2],
                            page.window.frame[3] + 80).save(os.path.join(
                                page.session.folder, f"tip-{number}-{page.session.dpi}dpi.png"))
        page.screen.move(*page.window.place(3, 3))
        wait_for(lambda: tip() is None, "the tip stays")


@scenario()
def disabled_page_ignores_the_pointer(page):
    page.disable()
    page[160].wait_color(DISABLED, 2, 2)
    page[161].wait_color(DISABLED, 2, 2)
    for number in (120, 121, 130, 140, 150, 160, 161, 170, 171, 180, 182):
        page[number].click()
    page.silent()
    page[90].click(8, 0.5)
    page[160].wait_color(NORMAL, 2, 2)
    page[160].click()
    page.wait_told("command 160 0 0 0")


@scenario()
def closes_by_its_box(page):
    left, top, right, _ = page.window.frame
    page.screen.click(right - 14, top + 12)
    equal(page.program.wait(), 0)


if __name__ == "__main__":
    run(__doc__, Page, lambda parser: parser.add_argument("--page", required=True))
