"""Reads the page of a gallery as a strict reader would, and prints its title
and data as JSON. Fails if anything in it is not as it should be.

Usage: gallery_page.py DIR
"""
import json
import os
import re
import sys
from html.parser import HTMLParser

VOID = {"meta", "img", "input", "br", "hr", "link"}


class Page(HTMLParser):
    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.open, self.ids, self.wanted, self.addresses = [], [], [], []
        self.cards, self.texts, self.title = [], {}, ""

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        assert len(given) == len(attributes), f"an attribute twice in <{tag}>"
        if tag not in VOID:
            self.open.append((tag, given))
        if "id" in given:
            self.ids.append(given["id"])
        self.wanted += [given[name] for name in ("for", "aria-labelledby") if name in given]
        self.addresses += [(tag, given[name]) for name in ("href", "src") if name in given]
        if tag == "li":
            self.cards.append({"id": given["data-id"], "name": ""})
        in_card = any(open_tag == "li" for open_tag, _ in self.open)
        if in_card and tag == "a":
            self.cards[-1]["large"] = given["href"]
        if in_card and tag == "img":
            self.cards[-1]["small"] = given["src"]
        if tag == "img":
            assert "alt" in given and "src" in given, "an image without src or alt"

    def handle_startendtag(self, tag, attributes):  # <path .../> of an icon
        self.handle_starttag(tag, attributes)
        self.handle_endtag(tag)

    def handle_endtag(self, tag):
        assert self.open and self.open[-1][0] == tag, f"</{tag}> ends {self.open[-1:]}"
        self.open.pop()

    def handle_data(self, data):
        tag, given = self.open[-1] if self.open else ("", {})
        if given.get("class") == "name" and tag == "span":
            self.cards[-1]["name"] += data
        if tag == "h1":
            self.title += data
        if tag in ("script", "style"):
            self.texts[given.get("id", tag)] = data


folder = sys.argv[1]
with open(os.path.join(folder, "index.html"), encoding="utf-8", errors="strict") as file:
    html = file.read()
page = Page()
page.feed(html)
page.close()
assert html.startswith("<!DOCTYPE html>") and not page.open, "not well formed"
assert "{{" not in html, "a place of the template is not filled"
assert len(set(page.ids)) == len(page.ids), "an id twice"
assert set(page.wanted) <= set(page.ids), "a label of nothing"
for tag, address in page.addresses:
    assert address.startswith("#") or os.path.isfile(os.path.join(folder, address)), address
assert not re.search(r"https?:|@import|url\((?![\"']?\$)", html), "something from elsewhere"

data = json.loads(page.texts["gallery-data"])
seen = [{key: look[key] for key in ("id", "name", "large", "small")} for look in data["looks"]]
# An empty card would be a picture without a word for those who cannot see it.
assert seen == page.cards and all(card["name"] for card in seen), "cards and data differ"
print(json.dumps({"title": page.title, **data}))
