"""Tests the user guide against the texts of the program, and the page that is made from it.

Usage: UserGuideTest.py PROJECT GuideTest
       UserGuideTest.py PROJECT PageTest CMAKE INSTALL-SCRIPT     (in the sandbox)
"""
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser
from pathlib import Path

PROJECT = Path()
INSTALLED = Path("/tmp/installed")


def guide() -> str:
    """The text of the guide without its code."""
    text = (PROJECT / "docs/user-guide.md").read_text(encoding="utf-8")
    return re.sub(r"^    .*$|`[^`]*`", "", text, flags=re.M)


def entries(chapter: str) -> list:
    """The headings of the sections of a chapter."""
    text = re.search(rf"^## {re.escape(chapter)}\n(.*?)(?=^## |\Z)", guide(), re.M | re.S).group(1)
    return re.findall(r"^### (.+)$", text, re.M)


def one_line(text: str) -> str:
    return re.sub(r"\s+", " ", text)


def plain(text: str) -> str:
    """The text of a menu entry or a button as users see it, without the dots behind it."""
    return one_line(text).replace("&", "").removesuffix("...").removesuffix("…")


def program_texts() -> set:
    catalogue = ElementTree.parse(PROJECT / "UDSetupQt/tr/PubSetupQt_de.ts")
    texts = {element.text for element in catalogue.iter("source")}
    entry = (PROJECT / "packaging/com.arven.UlmarDiscSetup.desktop").read_text(encoding="utf-8")
    return texts | set(re.findall(r"^Name=(.+)$", entry, re.M))


def anchors(text: str) -> set:
    """The names of the headings in links."""
    return {re.sub(r"[^\w -]", "", heading).lower().replace(" ", "-")
            for heading in re.findall(r"^#+ (.+)$", text, re.M)}


def pictures(text: str) -> list:
    return re.findall(r"!\[[^\]]+\]\(([^)]+)\)", text)


class GuideTest(unittest.TestCase):
    def test_every_status_of_the_list_has_an_entry(self):
        source = (PROJECT / "UDSetupCore/RowTexts.cpp").read_text(encoding="utf-8")
        statuses = set(re.findall(r'translate\(\s*"PubSetup",\s*"([^"]+)"\)', source))
        self.assertLessEqual({"Ready", "Error", "Not connected", "Administrator not registered", "Unsupported version"},
                             statuses)
        self.assertEqual(statuses - set(entries("Status texts")), set())

    def test_bold_texts_are_texts_of_the_program(self):
        bold = {plain(text) for text in re.findall(r"\*\*([^*]+)\*\*", guide())}
        self.assertGreater(len(bold), 20)
        self.assertEqual(bold - {plain(text) for text in program_texts()}, set())

    def test_quoted_messages_are_messages_of_the_program(self):
        messages = {one_line(text) for text in re.findall(r'"([A-Z][^"]*\.)"', guide())}
        self.assertGreater(len(messages), 10)
        texts = [one_line(text) for text in program_texts()]
        self.assertEqual({message for message in messages if not any(message in text for text in texts)}, set())

    def test_links_and_pictures_exist(self):
        text = guide()
        self.assertGreater(len(pictures(text)), 20)
        for target in re.findall(r"\]\(([^)]+)\)", text):
            if target.startswith("#"):
                self.assertIn(target[1:], anchors(text))
            else:
                self.assertTrue((PROJECT / "docs" / target).is_file(), target)


class Page(HTMLParser):
    def __init__(self, text: str):
        super().__init__()
        self.pictures = []
        self.targets = []
        self.names = []
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if tag == "img":
            self.pictures.append(values["src"])
        if "href" in values:
            self.targets.append(values["href"])
        if "id" in values:
            self.names.append(values["id"])


class PageTest(unittest.TestCase):
    def setUp(self):
        self.folder = INSTALLED / "share/doc/ulmar-disc-setup/user-guide"
        self.text = (self.folder / "index.html").read_text(encoding="utf-8")
        self.page = Page(self.text)

    def test_the_page_shows_every_picture_of_the_guide(self):
        self.assertEqual(self.page.pictures, [Path(picture).name for picture in pictures(guide())])
        for picture in self.page.pictures:
            self.assertTrue((self.folder / picture).read_bytes().startswith(b"\x89PNG\r\n\x1a\n"), picture)

    def test_links_lead_to_parts_of_the_page_and_to_installed_files(self):
        self.assertIn("guide.css", self.page.targets)
        self.assertIn("#unsupported-version", self.page.targets)
        self.assertEqual(len(self.page.names), len(set(self.page.names)))
        for target in self.page.targets:
            if target.startswith("#"):
                self.assertIn(target[1:], self.page.names)
            else:
                self.assertTrue((self.folder / target).is_file(), target)

    def test_the_page_loads_nothing_from_elsewhere(self):
        self.assertNotRegex(self.text, r"https?://|<script|@import")
        self.assertNotRegex((self.folder / "guide.css").read_text(encoding="utf-8"), r"url\(|@import")

    def test_no_other_file_is_installed(self):
        used = {"index.html", "guide.css", *self.page.pictures}
        self.assertEqual({str(path.relative_to(self.folder)) for path in self.folder.rglob("*")}, used)


if __name__ == "__main__":
    PROJECT = Path(sys.argv.pop(1))
    if len(sys.argv) > 2:
        script, cmake = sys.argv.pop(), sys.argv.pop()
        subprocess.run([cmake, f"-DCMAKE_INSTALL_PREFIX={INSTALLED}", "-P", script], check=True, stdout=subprocess.DEVNULL)
    unittest.main()
