"""Pages that the main dialog opens, by F1 and by the buttons of its header."""
import os

from scenarios import equal, scenario
from screen import Timeout, wait_for

CANCELLED = ["expect error -128", "expect untouched"]
OF_TABS = ("basic.html", "wash.html", "surface.html", "background.html")
MANUAL, ALL_PRESETS = 1126, 1127


class Help:
    """The pages of a run; what has been opened is told by the session."""

    def __init__(self, run):
        self._run, self._before = run, len(run.session.pages())
        self._folder = os.path.join(run.folder, "Tarnwick Studio", "Help")
        os.makedirs(self._folder, exist_ok=True)
        # All that there are, for a wrong one has to open too.
        for page in OF_TABS + ("texture_picker.html", "index.html", "presets.html"):
            with open(os.path.join(self._folder, page), "w") as file:
                file.write("<!doctype html><title>A page</title>\n")

    def opened(self):
        """The pages' names, the latest last; all lie in the folder."""
        pages = self._run.session.pages()[self._before:]
        equal([os.path.dirname(page) for page in pages], [self._folder] * len(pages))
        return [os.path.basename(page) for page in pages]

    def ask(self, action, page):
        """Does it until the page has been opened: while one opens another is dropped."""
        for _ in range(3):
            action()
            try:
                wait_for(lambda: self.opened()[-1:] == [page], "", 10)
                return
            except Timeout:
                continue
        raise AssertionError(f"opened {self.opened()}, not {page}")


@scenario()
def f1_opens_the_page_of_its_tab(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    pages = Help(run)
    for tab, page in enumerate(OF_TABS):
        dialog.tab(tab)
        pages.ask(lambda: run.screen.key("F1"), page)
    dialog.tab(0)
    pages.ask(lambda: run.screen.key("F1"), OF_TABS[0])
    dialog.cancel()


@scenario()
def f1_twice_opens_one_page(run):
    dialog = run.open(width=400, height=300, after=CANCELLED)
    pages = Help(run)
    pages.ask(lambda: run.screen.key("F1", "F1"), OF_TABS[0])
    # What the second one opened would be there before the next tab's page.
    dialog.tab(1)
    pages.ask(lambda: run.screen.key("F1"), OF_TABS[1])
    equal(pages.opened(), [OF_TABS[0], OF_TABS[1]])
    dialog.cancel()


@scenario()
def buttons_of_the_header_open_pages(run):
    """On any tab the same; All Presets does not stay lit."""
    dialog = run.open(width=400, height=300, after=CANCELLED)
    pages, idle = Help(run), dialog[ALL_PRESETS].picture().rgb()
    for tab in (0, 2):
        dialog.tab(tab)
        pages.ask(dialog[MANUAL].click, "index.html")
        pages.ask(dialog[ALL_PRESETS].click, "presets.html")
        # With the pointer on it, it would light up again at the next move.
        run.screen.move(*dialog.window.place(60, 400))
        wait_for(lambda: dialog[ALL_PRESETS].picture().rgb() == idle, "it stays lit")
        assert dialog.window.look().enabled
    dialog.cancel()
