"""The Auto button: what it throws is worked out anew here, for each second it may have been."""
import os
import time

from preset_files import HEAD, NONE, lines_of, preset, read_preset
from preset_shelf import SETTINGS, NameBox, Shelf, assignments, wait_shown
from scenarios import scenario
from screen import wait_for

AUTO = 1129
BASIC = {"WashFileName1": "Ramp.twk", "WashScale1": 40, "WashIntensity1": 150, "WashAngle1": 90,
         "SurfaceFileName1": "General_Store.twk", "SurfaceDepth1": 80,
         "BackgroundFileName": "Fiberglass.twk", "BackgroundScale": 25}
BACKGROUND = {"BackgroundFileName": "General_Store.twk", "BackgroundFlipHor": 1}
SURFACE = {"SurfaceFileName1": "Rusted.twk", "SurfaceDepth1": 70, "SurfaceInvert1": 1}
# Highlight, midtone and shadow.
COLORS = {"Dawn": (0x40A0E0, 0x305080, 0x101830), "Dusk": (0xE0A040, 0x805030, 0x301810)}
# Those that cannot be read would bring up a box.
BROKEN = ("Damaged.twk", "Short.twk")


class Dice:
    """The generator behind rand() of the system's run-time library."""

    def __init__(self, seed):
        self.seed(seed)

    def seed(self, seed):
        self.state = seed % 2 ** 32

    def below(self, count):
        self.state = (self.state * 214013 + 2531011) % 2 ** 32
        return (self.state >> 16) % 32768 % count


class Later(Exception):
    """The clock was looked at once more than there are seconds told."""


def clock(seconds):
    """A clock that tells these, one each time."""
    left = iter(seconds)

    def look():
        try:
            return next(left)
        except StopIteration:
            raise Later from None
    return look


def pick(dice, now, names):
    """As a drawer does, by a seed of its own."""
    dice.seed(now() * 12345678)
    return names[dice.below(len(names))]


def wash(dice, chance, number, now, textures):
    """The fields of one wash; of the second one some are drawn in another way."""
    thrown = {"FileName": pick(dice, now, textures)}
    thrown["Type"] = int((chance / 1000) ** 2 * 4 + 0.5)
    parts = [dice.below(255) for _ in range(3)]
    thrown["StainColor"] = parts[0] * 65536 + parts[1] * 256 + parts[2]
    r = dice.below(1000)
    distance = (r // 2 if r // 2 <= 200 else 100) - 100
    thrown["Intensity"] = int((abs(distance) / 100) * 0.85 * (abs(distance) / 100) * distance + 100)
    thrown["FlipHor"] = r % 2
    thrown["FlipVer"] = dice.below(32768) % 2
    thrown["Invert"] = int(dice.below(10) == 1 if number == 2 else dice.below(100) > 95)
    thrown["Angle"] = r % 4 * 90
    c = dice.below(500)
    coverage = int(c / 100 * -c) if c < 100 else 0
    if coverage:
        thrown["Coverage"] = coverage
        if number == 1:
            thrown["CoverageScale"], thrown["Randomize"] = min(dice.below(250), 100), r
        else:
            q = dice.below(1000)
            thrown["CoverageScale"], thrown["Randomize"] = min(q // 5, 100), q
    return {f"Wash{name}{number}": value for name, value in thrown.items()}


def look_of(now, textures):
    """All settings that a throw by this clock makes."""
    dice, look = Dice(now()), dict(SETTINGS)
    dice.below(1)
    is_whole = False
    if dice.below(100) < 33:
        dice.below(1)  # one of one folder
        dice.below(1)  # and of one file in it
        look.update(BASIC)
        is_whole = dice.below(100) < 33
    if not is_whole:
        for preset_settings in (BACKGROUND, SURFACE):
            dice.below(1)
            look.update({name: SETTINGS[name] for name in SETTINGS
                         if name.startswith(("Background", "Surface")[preset_settings is SURFACE])})
            look.update(preset_settings)
        w = dice.below(1000)
        if w >= 951:
            look["WashFileName1"] = NONE
        else:
            look.update(wash(dice, w, 1, now, textures))
            v = dice.below(1000)
            if v > 850:
                look.update({"SecondWashExists": 1, **wash(dice, v, 2, now, textures)})
    names = ["Reset Colors", *COLORS]
    for group in ("Surface", "Background"):
        if dice.below(100) < 20:
            name = pick(dice, now, names)
            if name in COLORS:
                for tone, color in zip(("Highlight", "Midtone", "Shadow"), COLORS[name]):
                    look[f"{group}{tone}Color"] = color
    washes = [look["WashFileName1"]] + [look["WashFileName2"]] * look["SecondWashExists"]
    look["WashUse"] = int(any(name != NONE for name in washes))
    return look


def looks_of(first, last, textures, told=()):
    """All that a throw between two seconds may make: the clock may move on in it."""
    try:
        return [look_of(clock(told), textures)]
    except Later:
        return [look for second in range(told[-1] if told else first, last + 1)
                for look in looks_of(first, last, textures, (*told, second))]


def library(run):
    run.presets["Basic/Metal/Plain.twkpst"] = preset("User", {**SETTINGS, **BASIC})
    run.presets["Background/Store.twkpst"] = preset("Background", {**SETTINGS, **BACKGROUND})
    run.presets["Surface/Rust.twkpst"] = preset("Surface", {**SETTINGS, **SURFACE})
    run.presets["User/Old.twkpst"] = b""  # for its folder
    for name, colors in COLORS.items():
        lines = zip(("lCiH", "lCdM", "lCdS"), colors)
        run.presets[f"Colors/{name}.twkpst"] = HEAD + b";------Color parameters------\n" + \
            b"rgtC Empty ;\n" + "".join(f"{key} {value} ;\n" for key, value in lines).encode()
    data = run.data

    def without_broken():
        folder = data()
        for name in BROKEN:
            os.remove(os.path.join(folder, "golden", "textures", name))
        return folder
    run.data = without_broken


def textures_of(run):
    names = sorted((name for name in os.listdir(run.file("Tarnwick Studio"))
                    if name.lower().endswith(".twk") and name != NONE), key=str.lower)
    return [NONE, *names]


def press(dialog):
    """The button; on the wash page a list has the same number."""
    button = next(one for one in dialog.window.children()
                  if one.id == AUTO and one.class_name == "Control Button CPP")
    button.click()
    # Its command is waiting until the button lets the pointer go.
    wait_for(lambda: not dialog.run.session.ask("focus")["capture"], "the button holds the pointer")
    dialog.screen.move(*dialog[1002].place())


def saved_settings(dialog, name):
    """What the dialog saves as the user's own, by its lines."""
    shelf = Shelf(dialog, "User")
    box = shelf.press_save()
    assert isinstance(box, NameBox)
    box.type(name)
    box.screen.key("Return")
    box.wait_back()
    return read_preset(dialog.run.preset(f"User/{name}.twkpst"))


@scenario()
def auto_throws_what_its_second_throws(run):
    """On each tab; the pane shows it, and what is applied is what the pane shows."""
    run.put("TarnwickStudio.ini", b"tfeL 20\nhtdW 1300\nthgH 900\nnSsU 1\n")
    library(run)
    dialog = run.open(width=400, height=300, after=["expect changed"])
    textures, shown = textures_of(run), None
    for tab in (0, 1, 2, 3):
        dialog.tab(tab)
        first = int(time.time())
        press(dialog)
        lines = saved_settings(dialog, f"Thrown {tab}")
        last = int(time.time())
        fits = [look for look in looks_of(first, last, textures)
                if lines_of("User", look) == lines]
        assert fits, f"{lines} is no throw between {first} and {last}"
        # No name for such a kind of wash, and no such scale, in the fresh view.
        if all(fits[0][f"WashType{n}"] < 4 and fits[0][f"WashCoverageScale{n}"] for n in (1, 2)):
            shown = fits[0]
            wait_shown(dialog, shown)
    dialog.window.shot("auto")
    dialog.ok()
    if shown == fits[0]:
        assert run.result().rgb() == run.aged(*assignments(shown)).rgb()
