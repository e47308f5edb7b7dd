"""Tests the user guide against the texts of the program.

Usage: UserGuideTest.py PROJECT GuideTest
"""
import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROJECT = Path()


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


if __name__ == "__main__":
    PROJECT = Path(sys.argv.pop(1))
    unittest.main()
