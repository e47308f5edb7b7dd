"""Tests the installed desktop integration files of the program.

Usage, in the sandbox: DesktopFilesTest.py PROJECT CMAKE INSTALL-SCRIPT
"""
import os
import re
import struct
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from collections import defaultdict
from pathlib import Path

PROJECT = Path()
INSTALLED = Path("/tmp/installed")
APPLICATION = "com.arven.UlmarDiscSetup"
LANGUAGES = {"de", "es", "fr", "it", "ja", "ko", "nl", "pt", "ru", "zh_CN", "zh_TW"}
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def desktop_entry() -> dict:
    """group -> key -> language ("" for English) -> value"""
    groups = {}
    for line in (INSTALLED / f"share/applications/{APPLICATION}.desktop").read_text().splitlines():
        if line.startswith("["):
            groups[line[1:-1]] = group = defaultdict(dict)
        elif line and not line.startswith("#"):
            key, value = line.split("=", 1)
            name, language = re.fullmatch(r"([A-Za-z]+)(?:\[(\w+)\])?", key).groups(default="")
            assert language not in group[name], f"{key} is repeated"
            group[name][language] = value
    return groups


def install_dir() -> str:
    text = (PROJECT / "Include/InstallPaths.h").read_text()
    return re.search(r'INSTALL_DIR\[\] = "([^"]+)"', text).group(1)


def launcher() -> str:
    return (INSTALLED / "bin/ulmar-disc-setup").read_text()


def handed_over() -> list:
    return re.search(r'^handed_over="([^"]+)"', launcher(), re.M).group(1).split()


def manual() -> str:
    return (INSTALLED / "share/man/man1/ulmar-disc-setup.1").read_text().replace(r"\-", "-")


class DesktopFilesTest(unittest.TestCase):
    def metainfo(self):
        return ElementTree.parse(INSTALLED / f"share/metainfo/{APPLICATION}.metainfo.xml").getroot()

    def policy(self):
        return ElementTree.parse(INSTALLED / f"share/polkit-1/actions/{APPLICATION}.policy").getroot()

    def expect_every_language(self, texts: dict, what: str):
        self.assertEqual(set(texts), LANGUAGES | {""}, what)
        for language, text in texts.items():
            self.assertTrue(text.strip(), f"{what} is empty in {language}")
        for language in LANGUAGES:
            self.assertNotEqual(texts[language], texts[""], f"{what} is English in {language}")

    def expect_runs_of_languages(self, parent, tag: str) -> int:
        """Checks that each text of a tag begins with English, followed by all languages; returns the number of texts."""
        runs = []
        for element in parent.findall(tag):
            language = element.get(XML_LANGUAGE, "")
            if not language:
                runs.append({})
            self.assertNotIn(language, runs[-1], f"{tag} is repeated")
            runs[-1][language] = element.text
        for run in runs:
            self.expect_every_language(run, f"<{tag}> {run['']}")
        return len(runs)

    # --- languages

    def test_the_entry_is_translated_into_every_language(self):
        groups = desktop_entry()
        for group, keys in (("Desktop Entry", ("GenericName", "Comment", "Keywords")),
                            ("Desktop Action administrator", ("Name",))):
            for key in keys:
                self.expect_every_language(groups[group][key], f"{group}: {key}")
        for language, words in groups["Desktop Entry"]["Keywords"].items():
            self.assertTrue(words.endswith(";"), language)
            self.assertEqual(words.count(";"), 10, f"keywords in {language}")
        self.assertEqual(groups["Desktop Entry"]["Name"], {"": "ARVEN Ulmar Disc Setup"})

    def test_the_policy_is_translated_into_every_language(self):
        action = self.policy().find("action")
        self.assertEqual(self.expect_runs_of_languages(action, "description"), 1)
        self.assertEqual(self.expect_runs_of_languages(action, "message"), 1)

    def test_the_metadata_are_translated_into_every_language(self):
        root = self.metainfo()
        self.assertEqual([name.text for name in root.findall("name")], ["ARVEN Ulmar Disc Setup"])
        self.assertEqual(self.expect_runs_of_languages(root, "summary"), 1)
        self.assertEqual(self.expect_runs_of_languages(root.find("description"), "p"), 2)
        self.assertEqual(self.expect_runs_of_languages(root.find("description/ul"), "li"), 5)
        shots = root.findall("screenshots/screenshot")
        self.assertEqual([self.expect_runs_of_languages(shot, "caption") for shot in shots], [1, 1, 1])

    def test_entry_and_metadata_have_the_same_texts(self):
        summaries = {s.get(XML_LANGUAGE, ""): s.text for s in self.metainfo().findall("summary")}
        self.assertEqual(summaries, desktop_entry()["Desktop Entry"]["Comment"])
        # The description uses the label of the action.
        labels = desktop_entry()["Desktop Action administrator"]["Name"]
        last = self.metainfo().findall("description/p")[-len(LANGUAGES) - 1:]
        for paragraph in last:
            self.assertIn(labels[paragraph.get(XML_LANGUAGE, "")], paragraph.text)

    def test_the_languages_include_those_of_the_program(self):
        catalogues = {path.stem.removeprefix("PubSetupQt_") for path in (PROJECT / "UDSetupQt/tr").glob("*.ts")}
        self.assertTrue(catalogues)
        self.assertLessEqual(catalogues, LANGUAGES)

    # --- names and paths

    def test_the_entry_starts_the_launcher(self):
        groups = desktop_entry()
        entry = groups["Desktop Entry"]
        self.assertEqual(entry["Exec"], {"": "ulmar-disc-setup"})
        self.assertEqual(entry["Actions"], {"": "administrator;"})
        self.assertEqual(groups["Desktop Action administrator"]["Exec"], {"": "ulmar-disc-setup --administrator"})
        self.assertTrue(os.access(INSTALLED / "bin/ulmar-disc-setup", os.X_OK))

    def test_the_programs_windows_belong_to_the_entry(self):
        self.assertEqual(desktop_entry()["Desktop Entry"]["StartupWMClass"], {"": "UDSetup"})  # under X11
        main = (PROJECT / "UDSetupQt/main.cpp").read_text()
        self.assertEqual(re.findall(r'setDesktopFileName\("([^"]+)"\)', main), [APPLICATION])  # under Wayland

    def test_the_icon_is_installed_in_every_size(self):
        self.assertEqual(desktop_entry()["Desktop Entry"]["Icon"], {"": APPLICATION})
        self.assertEqual(self.policy().findtext("icon_name"), APPLICATION)
        sizes = {}
        for path in (INSTALLED / "share/icons").rglob("*.png"):
            signature, width, height = struct.unpack(">8s8x2I", path.read_bytes()[:24])
            self.assertEqual(signature, b"\x89PNG\r\n\x1a\n")
            sizes[str(path.relative_to(INSTALLED / "share/icons/hicolor"))] = (width, height)
        self.assertEqual(sizes, {f"{n}x{n}/apps/{APPLICATION}.png": (n, n) for n in (16, 22, 24, 32, 48, 64, 128, 256)})
        drawing = ElementTree.parse(INSTALLED / f"share/icons/hicolor/scalable/apps/{APPLICATION}.svg").getroot()
        self.assertEqual(drawing.tag, "{http://www.w3.org/2000/svg}svg")
        self.assertEqual(drawing.get("viewBox"), "0 0 64 64")

    def test_launcher_and_policy_name_the_installed_program(self):
        program = install_dir() + "/UDSetup"
        self.assertIn(f'\nprogram="{program}"\n', launcher())
        annotations = {a.get("key"): a.text for a in self.policy().findall("action/annotate")}
        self.assertEqual(annotations, {"org.freedesktop.policykit.exec.path": program})

    def test_the_policy_asks_for_a_password_each_time(self):
        self.assertEqual([a.get("id") for a in self.policy().findall("action")], [f"{APPLICATION}.run"])
        self.assertEqual({d.tag: d.text for d in self.policy().find("action/defaults")},
                         {"allow_any": "auth_admin", "allow_inactive": "auth_admin", "allow_active": "auth_admin"})

    def test_the_metadata_name_the_program(self):
        root = self.metainfo()
        self.assertEqual(root.findtext("id"), APPLICATION)
        self.assertEqual(root.findtext("launchable"), f"{APPLICATION}.desktop")
        self.assertEqual(root.findtext("provides/binary"), "ulmar-disc-setup")
        self.assertEqual(root.findtext("project_license"), "MIT")

    def test_the_screenshots_exist(self):
        pictures = [image.text.rsplit("/", 1)[1] for image in self.metainfo().findall("screenshots/screenshot/image")]
        self.assertEqual(len(pictures), 3)
        for picture in pictures:
            self.assertTrue((PROJECT / "docs" / picture).is_file(), picture)

    def test_metadata_and_manual_name_the_user_guide(self):
        links = {link.get("type"): link.text for link in self.metainfo().findall("url")}
        self.assertEqual(links["help"], links["homepage"] + "docs/user-guide/index.html")
        self.assertIn("\n.I /usr/share/doc/ulmar-disc-setup/user-guide/index.html\n", manual())

    def test_all_files_have_the_same_version(self):
        version = re.search(r"project\(UlmarDiscSetup VERSION ([\d.]+)", (PROJECT / "CMakeLists.txt").read_text()).group(1)
        changes = re.findall(r"^## ([\d.]+)", (PROJECT / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual([r.get("version") for r in self.metainfo().findall("releases/release")], changes)
        self.assertEqual(changes[0], version)
        self.assertIn(f'"ARVEN Ulmar Disc Setup {version}"\n', manual())

    # --- the manual

    def test_the_program_has_the_same_manual_page(self):
        self.assertEqual((INSTALLED / "share/man/man1/UDSetup.1").read_text(), ".so man1/ulmar-disc-setup.1\n")

    def test_the_manual_lists_every_variable(self):
        environment = manual().split(".SH ENVIRONMENT\n")[1].split(".SH FILES\n")[0]
        told = [name for line in re.findall(r"\.TP\n((?:.*\\\n)*.*)", environment) for name in re.findall(r"[A-Z][A-Z0-9_]+", line)
                if name not in ("BR", "TP")]
        self.assertEqual(sorted(told), sorted(handed_over()))

    def test_the_manual_lists_every_exit_status(self):
        ends = manual().split('.SH "EXIT STATUS"\n')[1].split(".SH ENVIRONMENT\n")[0]
        told = {int(number) for number in re.findall(r"^\.B (\d+)$", ends, re.M)}
        own = {int(number) for number in re.findall(r"^[a-z_]+=(\d+)(?: #.*)?$", launcher(), re.M)} - {255}
        self.assertEqual(told, own | {0})


if __name__ == "__main__":
    PROJECT = Path(sys.argv.pop(1))
    cmake, script = sys.argv.pop(1), sys.argv.pop(1)
    subprocess.run([cmake, f"-DCMAKE_INSTALL_PREFIX={INSTALLED}", "-P", script], check=True, stdout=subprocess.DEVNULL)
    unittest.main()
