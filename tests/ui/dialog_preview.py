"""The preview pane of the main dialog: zoom, pan and what it shows."""
from host_run import KEYPAD_MINUS, KEYPAD_PLUS, pattern
from picture import from_rgb
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]


def buttons(dialog):
    return [dialog[1000].look().enabled, dialog[1001].look().enabled]


@scenario(96, 144)
def zoom_steps_by_buttons_and_keys(run):
    """Of 1400 x 1000, the pane of the smallest window shows a third at fit."""
    dialog = run.open(after=CANCELLED)
    width, height = dialog[1002].size
    steps = max(-(-1400 // width), -(-1000 // height))
    assert steps >= 3
    for scale in range(2, steps + 1):
        if scale % 2:
            run.screen.key(KEYPAD_MINUS)
        else:
            dialog[1001].click()
        dialog.wait_scale(100 // scale)
        dialog.wait_pane(dialog.window_at(0, 0, scale))
        equal(buttons(dialog), [True, scale < steps])
    # The key of a disabled button does nothing; the next one comes after it.
    run.screen.key(KEYPAD_MINUS)
    run.screen.key(KEYPAD_PLUS)
    dialog.wait_scale(100 // (steps - 1))
    run.screen.key("ctrl+1")
    dialog.wait_scale(100)
    equal(buttons(dialog), [False, True])
    run.screen.key(KEYPAD_PLUS)
    run.screen.key("ctrl+0")
    dialog.wait_scale(100 // steps)
    dialog.wait_pane(dialog.window_at(0, 0, steps))
    equal(buttons(dialog), [True, False])
    dialog.cancel()


@scenario()
def keys_go_on_when_a_zoom_button_is_disabled(run):
    """The button that has been clicked has the focus; at its last step it loses it."""
    dialog = run.open(width=900, height=600, after=CANCELLED)
    while dialog[1001].look().enabled:
        before = dialog[1003].look().text
        dialog[1001].click()
        wait_for(lambda: dialog[1003].look().text != before, "no step")
    wait_for(dialog[1].has_focus, "OK has not got the focus")
    run.screen.key("Escape")
    run.finish()


@scenario()
def zoom_keeps_the_middle(run):
    dialog = run.open(after=CANCELLED)
    width, height = dialog[1002].size
    dialog[1001].click()
    dialog.wait_scale(50)
    dialog.wait_pane(dialog.window_at(0, 0, 2))
    # Twice as large: half of the 700 and 500 pixels that come with it, as far as there are.
    dialog[1000].click()
    dialog.wait_scale(100)
    dialog.wait_pane(dialog.window_at(min(350, 1400 - width), min(250, 1000 - height)))
    dialog.cancel()


@scenario()
def a_small_picture_stands_in_the_middle(run):
    dialog = run.open(width=200, height=150, after=CANCELLED)
    equal(buttons(dialog), [False, False])
    dialog.wait_pane(run.aged())
    dialog.cancel()


@scenario(96, 144)
def pan_follows_the_pointer(run):
    dialog = run.open(after=CANCELLED)
    pane = dialog[1002]
    dialog.wait_pane(dialog.window_at(0, 0))
    face = dialog.window.at(3, 110)
    before = pane.picture()
    pane.drag((200, 200), (120, 140), lets_go=False)
    # The picture as it is moves along; what it has not yet is the dialog's face.
    pane.wait_color(before.at(180, 160), 100, 100)
    pane.wait_color(face, pane.size[0] - 4, pane.size[1] - 4)
    run.screen.release()
    dialog.wait_pane(dialog.window_at(80, 60))
    # Not beyond its corner.
    pane.drag((10, 10), (600, 500))
    dialog.wait_pane(dialog.window_at(0, 0))
    equal(dialog[1003].look().text, "100%")
    dialog.cancel()


@scenario()
def pan_at_half_the_size(run):
    dialog = run.open(width=2000, height=1500, after=CANCELLED)
    pane = dialog[1002]
    dialog[1001].click()
    dialog.wait_scale(50)
    pane.drag((200, 200), (163, 179))
    dialog.wait_pane(dialog.window_at(37, 21, 2))
    dialog.cancel()


@scenario()
def a_drag_with_control_moves_the_texture(run):
    """Each move at once, and never on the first page."""
    dialog = run.open(after=["expect setting WashOffsetY1 30"])
    pane = dialog[1002]
    dialog.wait_pane(dialog.window_at(0, 0))
    before = pane.picture().rgb()
    run.screen.do("keydown", "ctrl")
    pane.drag((200, 200), (200, 170))
    run.screen.do("keyup", "ctrl")
    dialog.tab(1)
    dialog.wait_pane(dialog.window_at(0, 0))
    equal(pane.picture().rgb(), before)
    run.screen.do("keydown", "ctrl")
    pane.drag((200, 200), (200, 180), lets_go=False)
    dialog.wait_pane(dialog.window_at(0, 0, 1, "WashOffsetY1=20"))
    pane.screen.move(*pane.place(200, 170))
    dialog.wait_pane(dialog.window_at(0, 0, 1, "WashOffsetY1=30"))
    run.screen.release()
    run.screen.do("keyup", "ctrl")
    dialog.ok()
    equal(run.result().rgb(), run.aged("WashOffsetY1=30").rgb())


@scenario(96, 144)
def the_pointer_is_a_hand_over_the_pane(run):
    """An open one, a closed one in a pan, none with CTRL; their drawings are for eyes."""
    dialog = run.open(after=["expect error -128"])
    pane, shape = dialog[1002], lambda: run.session.ask("pointer")
    dialog.wait_pane(dialog.window_at(0, 0))
    run.screen.move(*dialog.window.place(10, 200))
    wait_for(shape, "no pointer over the dialog")
    arrow = shape()

    def wait_other(*shapes):
        wait_for(lambda: shape() not in (0, *shapes), "the pointer keeps its shape")
        return shape()
    pane.move(200, 200)
    opened = wait_other(arrow)
    pane.drag((200, 200), (160, 180), lets_go=False)
    closed = wait_other(arrow, opened)
    # Held beyond the pane too.
    run.screen.move(*dialog.window.place(10, 200))
    wait_for(lambda: shape() == closed, "the hand lets go outside")
    pane.move(160, 180)
    run.screen.release()
    wait_for(lambda: shape() == opened, "the hand stays closed")
    run.screen.do("keydown", "ctrl")
    pane.move(170, 190)
    of_class = wait_other(arrow, opened, closed)
    pane.drag((170, 190), (150, 180), lets_go=False)
    wait_for(lambda: run.session.ask("focus")["capture"] == pane.number, "not captured")
    equal(shape(), of_class)
    run.screen.release()
    run.screen.do("keyup", "ctrl")
    pane.move(180, 200)
    wait_for(lambda: shape() == opened, "no hand without CTRL")
    run.screen.move(*dialog.window.place(10, 200))
    wait_for(lambda: shape() == arrow, "a hand beside the pane")
    dialog.cancel()


@scenario()
def the_right_button_is_held_by_the_pane(run):
    dialog = run.open(after=CANCELLED)
    pane = dialog[1002]
    pane.press(button=3)
    wait_for(lambda: run.session.ask("focus")["capture"] == pane.number, "not captured")
    run.screen.release(3)
    wait_for(lambda: run.session.ask("focus")["capture"] == 0, "still captured")
    dialog.wait_pane(dialog.window_at(0, 0))
    dialog.cancel()


@scenario()
def transparency_shows_the_grid(run):
    """Squares of 7 pixels, for nothing lies below; clear on the left, opaque on the right."""
    dialog = run.open(width=400, height=300, planes=4, after=CANCELLED)
    pane = dialog[1002]
    left, top = (pane.size[0] - 400) // 2, (pane.size[1] - 300) // 2
    pane.wait_color((204, 204, 204), left, top + 6)
    for y, grey in ((7, 255), (13, 255), (14, 204), (290, 255)):
        equal(pane.at(left, top + y), (grey, grey, grey))
    # Opaque, so that squares make no difference.
    for x in range(340, 399):
        assert pane.at(left + x, top + 150) not in ((204, 204, 204), (255, 255, 255))
    equal(pane.at(left - 1, top + 150), (0, 0, 0))
    dialog.cancel()


@scenario()
def a_deep_picture_shows_as_its_bytes(run):
    """The effects take half of each row for a row of bytes; the pane takes 16 bits a sample.

    So the first half of the buffer is aged as a picture of bytes, the second stays as
    it was, and what is seen of a sample is a 128th of it, with 32768 for white.
    """
    width, height = 300, 200
    samples = pattern(width, height)[-width * height * 3:]
    document = bytearray(2 * len(samples))
    document[0::2] = document[1::2] = samples  # as the host makes 16 bits of 8
    half = len(samples)
    dialog = run.open(width, height, mode="rgb48", before=["option row-padding 0"],
                      after=CANCELLED)
    as_bytes = run.put("as-bytes.ppm", b"P6\n%d %d\n255\n" % (width, height) + document[:half])
    result = run.aged(window=(0, 0, width, height), picture=as_bytes).rgb() + document[half:]
    seen = bytes(min((low + 256 * high) // 128, 255)
                 for low, high in zip(result[0::2], result[1::2]))
    assert 0 in seen and 255 in seen and len(set(seen)) > 200  # dark, too bright, and between
    dialog.wait_pane(from_rgb(width, height, seen))
    dialog.cancel()
