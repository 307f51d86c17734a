#!/usr/bin/env python3
"""The manual as users get it: every page that the module asks for is there, well
formed, light, without scripts or addresses of others, and shows pictures that exist.

Usage: manual_test.py FOLDER    the folder Help of a built data folder
"""
import os
import struct
import sys
import xml.etree.ElementTree as xml

PAGES = {"index", "basic", "wash", "surface", "background", "texture_picker", "presets"}
# What a page and its pictures may weigh together.
MOST_BYTES = {"presets": 2_000_000}
MOST_BYTES_ELSE = 300_000

folder = sys.argv[1]
faults = []


def fault(page, text):
    faults.append(f"{page}.html: {text}")


def picture_size(path):
    """Width and height, from the frame header of a JPEG, the first block of a PNG."""
    with open(path, "rb") as file:
        data = file.read()
    if data.startswith(b"\x89PNG\r\n\x1a\n"):
        return struct.unpack(">II", data[16:24])
    at = 2
    while data[at] == 0xFF:
        marker, length = data[at + 1], struct.unpack(">H", data[at + 2:at + 4])[0]
        if 0xC0 <= marker <= 0xC2:
            height, width = struct.unpack(">HH", data[at + 5:at + 9])
            return width, height
        at += 2 + length
    raise ValueError(f"{path}: no picture")


def local(page, address):
    """The file that an address leads to, or None."""
    path = os.path.join(folder, address)
    if ":" in address or address.startswith(("/", "#")) or not os.path.isfile(path):
        fault(page, f"{address} leads nowhere")
        return None
    return path


def check(page):
    path = os.path.join(folder, page + ".html")
    weight = os.path.getsize(path)
    try:
        root = xml.parse(path).getroot()
    except xml.ParseError as error:
        fault(page, error)
        return set()
    shown, linked = set(), set()
    for element in root.iter():
        if element.tag in ("script", "iframe", "object") or any(
                name.startswith("on") for name in element.attrib):
            fault(page, f"<{element.tag}> runs something")
        if "style" in element.attrib or element.tag == "style":
            fault(page, f"<{element.tag}> has a style of its own")
        if element.tag == "link" and local(page, element.get("href")):
            weight += os.path.getsize(os.path.join(folder, element.get("href")))
        if element.tag == "a" and local(page, element.get("href")):
            linked.add(element.get("href"))
        if element.tag == "img":
            picture = local(page, element.get("src"))
            if not element.get("alt"):
                fault(page, f"{element.get('src')} is nothing to those who do not see it")
            if picture:
                said = int(element.get("width")), int(element.get("height"))
                if picture_size(picture) != said:
                    fault(page, f"{picture} is {picture_size(picture)}, not {said}")
                if picture not in shown:
                    weight += os.path.getsize(picture)
                shown.add(picture)
    if linked != {name + ".html" for name in PAGES}:
        fault(page, f"leads to {sorted(linked)}")
    if weight > MOST_BYTES.get(page, MOST_BYTES_ELSE):
        fault(page, f"weighs {weight} bytes")
    if not root.findtext("head/title"):
        fault(page, "no title")
    return shown


found = {name[:-5] for name in os.listdir(folder) if name.endswith(".html")}
if found != PAGES:
    faults.append(f"pages: {sorted(found)}")
shown = set().union(*(check(page) for page in sorted(found & PAGES)))
made = {os.path.join(folder, place, name) for place in ("pictures", "windows")
        for name in os.listdir(f"{folder}/{place}")}
for picture in sorted(made - shown):
    faults.append(f"{picture} is on no page")
with open(f"{folder}/help.css") as file:
    if "url(" in file.read():
        faults.append("help.css fetches something")
print("\n".join(faults) or f"{len(found)} pages, {len(made)} pictures")
sys.exit(bool(faults))
