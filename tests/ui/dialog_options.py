"""The new-layer options of the main dialog, its pages and a batch."""
from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
BOXES = (1022, 1023, 1025, 1024)  # of the pages, in their order
LABELS = (9111, 1112, 1114, 1113)
OPTIONS = ("NewLayerEffect", "MaskLayerEffect", "NewLayerSurface", "NewLayerBackground")
OFF, HOVERED, ON = (127, 127, 127), (180, 188, 180), (255, 255, 255)


def wait_option(dialog, index, is_on):
    """Box and label of an option show it."""
    wait_for(lambda: dialog[BOXES[index]].look().checked == is_on, f"{OPTIONS[index]} stays")
    if dialog.shown(LABELS[index]):
        wait_for(lambda: (ON if is_on else OFF) in dialog[LABELS[index]].picture().colors(),
                 f"the label of {OPTIONS[index]} stays")


@scenario(96, 144)
def each_page_has_its_option(run):
    dialog = run.open(width=400, height=300, planes=4, after=["expect error -128"])
    for tab in range(4):
        dialog.tab(tab)
        wait_for(lambda: [dialog.shown(box) for box in BOXES] == [tab == one for one in range(4)],
                 f"other boxes on page {tab}")
        equal([dialog.shown(label) for label in LABELS], [tab == one for one in range(4)])
        dialog.window.shot(f"dialog-page-{tab}")
    dialog.cancel()


@scenario()
def options_are_clicked(run):
    """By box and by label; the mask's brings the background's along, and leaves it."""
    dialog = run.open(width=400, height=300, planes=4, before=["add layer Above above",
                                                               'target layer "Layer 1"'],
                      after=["expect setting NewLayerEffect 1", "expect setting MaskLayerEffect 0",
                             "expect setting NewLayerSurface 1",
                             "expect setting NewLayerBackground 1"])
    wait_option(dialog, 0, 0)
    dialog[LABELS[0]].click(40, 0.5)
    wait_option(dialog, 0, 1)
    dialog[BOXES[0]].click()
    wait_option(dialog, 0, 0)
    dialog[BOXES[0]].click()
    wait_option(dialog, 0, 1)
    dialog.tab(1)
    wait_option(dialog, 3, 0)
    dialog[BOXES[1]].click()
    wait_option(dialog, 1, 1)
    wait_option(dialog, 3, 1)
    dialog[LABELS[1]].click(40, 0.5)
    wait_option(dialog, 1, 0)
    wait_option(dialog, 3, 1)
    dialog.tab(2)
    dialog[LABELS[2]].click(40, 0.5)
    wait_option(dialog, 2, 1)
    dialog.tab(3)
    wait_option(dialog, 3, 1)
    run.screen.move(*dialog[LABELS[3]].place(40, 0.5))
    wait_option(dialog, 3, 1)
    dialog.ok()


@scenario()
def a_label_follows_the_pointer(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    label = dialog[LABELS[0]]
    run.screen.move(*label.place(40, 0.5))
    wait_for(lambda: HOVERED in label.picture().colors(), "it does not follow")
    run.screen.move(*dialog.window.place(60, 400))
    wait_for(lambda: OFF in label.picture().colors(), "it does not let go")
    dialog.cancel()


@scenario()
def a_mask_needs_transparency(run):
    dialog = run.open(width=400, height=300, planes=3, after=CANCELLED)
    equal([dialog[box].enabled for box in BOXES], [True, False, True, True])
    equal([dialog[label].enabled for label in LABELS], [True, False, True, True])
    dialog.tab(1)
    dialog[LABELS[1]].click(40, 0.5)
    dialog[BOXES[1]].click()
    dialog.tab(0)
    dialog[BOXES[0]].click()
    wait_option(dialog, 0, 1)
    equal(dialog[BOXES[1]].look().checked, 0)
    dialog.cancel()


@scenario()
def a_mask_of_cmyk_needs_five_planes(run):
    for planes, is_offered in ((4, False), (5, True)):
        dialog = run.open(width=60, height=40, planes=planes, mode="cmyk", after=CANCELLED)
        equal(dialog[BOXES[1]].enabled, is_offered)
        dialog.cancel()


@scenario()
def a_host_without_layers_offers_none(run):
    dialog = run.open(width=60, height=40, planes=4, after=CANCELLED,
                      before=["refuse suite references 2", "refuse suite references 3"])
    equal([dialog[box].enabled for box in BOXES], [False] * 4)
    equal([dialog[label].enabled for label in LABELS], [False] * 4)
    dialog.cancel()


@scenario()
def a_batch_has_no_options(run):
    for to_all, caption in ((0, "Apply"), (1, "Apply to All")):
        dialog = run.open(width=60, height=40, planes=4, after=CANCELLED,
                          before=[f"settings BatchMode 1 ApplyToAll {to_all}"])
        equal(dialog[1].text, caption)
        for tab in range(4):
            dialog.tab(tab)
            equal([dialog.shown(number) for number in BOXES + LABELS], [False] * 8)
        dialog.cancel()


@scenario()
def cancel_brings_everything_back(run):
    dialog = run.open(planes=4, after=["expect error -128"] + [
        f"expect setting {name} 0" for name in OPTIONS + ("WashOffsetY1",)])
    dialog[BOXES[0]].click()
    wait_option(dialog, 0, 1)
    dialog.tab(1)
    dialog[BOXES[1]].click()
    wait_option(dialog, 3, 1)
    dialog.cancel()
