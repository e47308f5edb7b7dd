"""Tests the launcher with substitutes for pkexec, the program and notify-send that record their arguments.

Usage, in the sandbox as an ordinary user: LauncherTest.py LAUNCHER
"""
import os
import shutil
import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LAUNCHER = None
PROGRAM = Path("/opt/arven/Ulmar Disc Maker/UDSetup")
RECORDER = '#!/bin/sh\nprintf \'%s\\0\' $# "$@" >"$RECORDS/${0##*/}"\nexit "${ENDS_WITH:-0}"\n'

ALL_VARIABLES = [  # in the order in which the launcher passes them
    "DISPLAY", "XAUTHORITY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM",
    "DBUS_SESSION_BUS_ADDRESS", "DESKTOP_STARTUP_ID",
    "LANG", "LANGUAGE", "LC_ALL", "LC_COLLATE", "LC_CTYPE", "LC_MESSAGES", "LC_NUMERIC", "LC_TIME",
    "QT_IM_MODULE", "XMODIFIERS",
    "XDG_CURRENT_DESKTOP", "KDE_FULL_SESSION", "KDE_SESSION_VERSION", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE",
    "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_FONT_DPI", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
    "XCURSOR_SIZE", "XCURSOR_THEME",
]


def executable(path: Path, text: str) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    path.chmod(0o755)


class LauncherTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.place)
        self.tools = self.place / "tools"
        self.records = self.place / "records"
        self.home = self.place / "home"
        self.session = self.place / "session"
        for folder in (self.tools, self.records, self.home, self.session):
            folder.mkdir()
        # The path contains only the tools that the launcher may use.
        for tool in ("cat", "id", "wc"):
            (self.tools / tool).symlink_to(shutil.which(tool))
        for tool in ("pkexec", "notify-send"):
            executable(self.tools / tool, RECORDER)
        executable(PROGRAM, RECORDER)

    def base(self) -> dict:
        return {"PATH": str(self.tools), "HOME": str(self.home), "RECORDS": str(self.records)}

    def launch(self, *arguments: str, **environment: str) -> subprocess.CompletedProcess:
        return subprocess.run([LAUNCHER, *arguments], env=self.base() | environment, capture_output=True, text=True,
                              timeout=20, check=False)

    def record(self, tool: str):
        """The arguments with which the tool was called; None if it was not called."""
        path = self.records / tool
        if not path.exists():
            return None
        count, *arguments = path.read_bytes().decode().split("\0")[:-1]
        self.assertEqual(int(count), len(arguments))
        return arguments

    # --- as the current user

    def test_starts_the_program_with_its_arguments(self):
        for arguments in ([], ["Studio A"], ["two  blanks", "", "new\nline", "-envFOO=bar", '"\'$(x)`*'],
                          ["--unknown"], ["Studio A", "--administrator"], [""]):
            with self.subTest(arguments):
                ended = self.launch(*arguments, ENDS_WITH="3")
                self.assertEqual(ended.returncode, 3)
                self.assertEqual(self.record("UDSetup"), arguments)
                self.assertIsNone(self.record("pkexec"))

    def test_reports_that_the_program_is_not_installed(self):
        PROGRAM.unlink()
        for arguments in ([], ["--administrator"]):
            with self.subTest(arguments):
                ended = self.launch(*arguments, DISPLAY=":0")
                self.assertEqual(ended.returncode, 69)
                self.assertEqual(ended.stderr, 'ulmar-disc-setup: "/opt/arven/Ulmar Disc Maker/UDSetup" is not '
                                               "installed.\n")
        self.assertIsNone(self.record("pkexec"))

    def test_help(self):
        ended = self.launch("--help")
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertTrue(ended.stdout.startswith("usage: ulmar-disc-setup [NAME]\n"))
        self.assertIsNone(self.record("UDSetup"))

    # --- as the administrator

    def test_passes_each_variable_that_has_a_value(self):
        values = {name: f"value of {name}" for name in ALL_VARIABLES}
        values["WAYLAND_DISPLAY"] = "/run/user/1000/wayland-0"
        ended = self.launch("--administrator", **values)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertEqual(self.record("pkexec"),
                         [str(PROGRAM)] + [f"-env{name}={values[name]}" for name in ALL_VARIABLES])
        self.assertIsNone(self.record("UDSetup"), "only pkexec may start it")

    def test_omits_variables_without_a_value(self):
        self.launch("--administrator", DISPLAY=":0", LANG="", LC_TIME="C")
        self.assertEqual(self.record("pkexec"), [str(PROGRAM), "-envDISPLAY=:0", "-envLC_TIME=C"])

    def test_passes_no_variable_that_names_a_location_of_code(self):
        self.launch("--administrator", DISPLAY=":0", QT_PLUGIN_PATH="/x", LD_PRELOAD="", LD_LIBRARY_PATH="/x",
                    QT_QPA_PLATFORM_PLUGIN_PATH="/x", XDG_RUNTIME_DIR=str(self.session))
        self.assertEqual(self.record("pkexec"), [str(PROGRAM), "-envDISPLAY=:0"])

    def test_passes_values_unchanged(self):
        for value in ("two  blanks ", "a=b=c", "new\nline", "\n", '"double" and \'single\'', "$(touch x) `y` $HOME \\n",
                      "*", "-", "ä日本語"):
            with self.subTest(value):
                self.launch("--administrator", DISPLAY=":0", XCURSOR_THEME=value)
                self.assertEqual(self.record("pkexec"), [str(PROGRAM), "-envDISPLAY=:0", f"-envXCURSOR_THEME={value}"])

    def test_the_publishers_name_stays_first(self):
        for name in ("Studio A", "two  blanks", "--help", "$x `y` \"z\"", ""):
            with self.subTest(name):
                self.launch("--administrator", name, DISPLAY=":0")
                self.assertEqual(self.record("pkexec"), [str(PROGRAM), name, "-envDISPLAY=:0"])

    def test_omits_values_that_the_program_would_truncate(self):
        for value, bytes_ in (("x" * 255, 255), ("x" * 256, 256), ("ä" * 127, 254), ("ä" * 128, 256),
                              ("x" * 254 + "\n", 255), ("x" * 255 + "\n", 256)):
            for locale in ("C", "C.UTF-8"):
                with self.subTest(value=value, locale=locale):
                    ended = self.launch("--administrator", DISPLAY=":0", LC_ALL=locale, XMODIFIERS=value)
                    self.assertEqual(ended.returncode, 0)
                    expected = [str(PROGRAM), "-envDISPLAY=:0", f"-envLC_ALL={locale}"]
                    said = ""
                    if bytes_ <= 255:
                        expected.append(f"-envXMODIFIERS={value}")
                    else:
                        said = f"ulmar-disc-setup: XMODIFIERS is not handed over: it has {bytes_} bytes, and 255 are the most.\n"
                    self.assertEqual((self.record("pkexec"), ended.stderr), (expected, said))

    def test_accepts_at_most_one_name(self):
        ended = self.launch("--administrator", "a", "b", DISPLAY=":0")
        self.assertEqual((ended.returncode, ended.stdout), (64, ""))
        self.assertTrue(ended.stderr.startswith("usage: "))
        self.assertIsNone(self.record("pkexec"))

    def test_does_not_ask_root_for_a_password(self):
        (self.tools / "id").unlink()
        executable(self.tools / "id", "#!/bin/sh\necho 0\n")
        ended = self.launch("--administrator", "Studio A", DISPLAY=":0", ENDS_WITH="3")
        self.assertEqual(ended.returncode, 3)
        self.assertEqual(self.record("UDSetup"), ["Studio A"])
        self.assertIsNone(self.record("pkexec"))

    # --- files in the user's folders

    def test_passes_the_users_xauthority(self):
        (self.home / ".Xauthority").write_text("")
        cookie = f"{self.home}/.Xauthority"
        for environment, expected in (
                ({"DISPLAY": ":0"}, ["-envDISPLAY=:0", f"-envXAUTHORITY={cookie}"]),
                ({"DISPLAY": ":0", "XAUTHORITY": "/x"}, ["-envDISPLAY=:0", "-envXAUTHORITY=/x"]),
                ({"WAYLAND_DISPLAY": "/w"}, ["-envWAYLAND_DISPLAY=/w", "-envQT_QPA_PLATFORM=wayland"])):
            with self.subTest(environment):
                self.launch("--administrator", **environment)
                self.assertEqual(self.record("pkexec"), [str(PROGRAM)] + expected)

    def test_passes_the_absolute_path_of_the_wayland_socket(self):
        session = str(self.session)
        x11 = "-envDISPLAY=:0"
        for environment, expected in (
                ({"WAYLAND_DISPLAY": "wayland-0", "XDG_RUNTIME_DIR": session},
                 [f"-envWAYLAND_DISPLAY={session}/wayland-0", "-envQT_QPA_PLATFORM=wayland"]),
                ({"WAYLAND_DISPLAY": "wayland-0", "XDG_RUNTIME_DIR": session, "QT_QPA_PLATFORM": "xcb"},
                 [f"-envWAYLAND_DISPLAY={session}/wayland-0", "-envQT_QPA_PLATFORM=xcb"]),
                ({"WAYLAND_DISPLAY": "wayland-0", "XDG_RUNTIME_DIR": session, "DISPLAY": ":0"},
                 [x11, f"-envWAYLAND_DISPLAY={session}/wayland-0"]),
                ({"WAYLAND_DISPLAY": "wayland-0", "DISPLAY": ":0"}, [x11])):
            with self.subTest(environment):
                self.launch("--administrator", **environment)
                self.assertEqual(self.record("pkexec"), [str(PROGRAM)] + expected)

    def test_passes_the_address_of_the_session_bus(self):
        with socket.socket(socket.AF_UNIX) as bus:
            bus.bind(str(self.session / "bus"))
            there = f"unix:path={self.session}/bus"
            for environment, expected in (({"XDG_RUNTIME_DIR": str(self.session)}, [there]),
                                          ({"XDG_RUNTIME_DIR": str(self.place)}, []),
                                          ({"DBUS_SESSION_BUS_ADDRESS": "unix:abstract=/x,guid=1"},
                                           ["unix:abstract=/x,guid=1"])):
                with self.subTest(environment):
                    self.launch("--administrator", DISPLAY=":0", **environment)
                    self.assertEqual(self.record("pkexec"), [str(PROGRAM), "-envDISPLAY=:0"] +
                                     [f"-envDBUS_SESSION_BUS_ADDRESS={address}" for address in expected])

    # --- failures

    def test_reports_how_the_authorisation_ended(self):
        dismissed = "Dismissed: the password was not given, so nothing was started."
        refused = ("Refused: the password was wrong, you may not run it as administrator, or nothing in this session can "
                   "ask for the password (no authentication agent runs).")
        aborted = ("The program was aborted. If no window came up, this desktop does not let windows of root in: "
                   '"xhost +si:localuser:root" lets them in until you log out, and under Wayland an X11 session does so '
                   "as a rule.")
        for status, text, on_the_desktop in ((126, dismissed, False), (127, refused, True), (134, aborted, True)):
            with self.subTest(status):
                (self.records / "notify-send").unlink(missing_ok=True)
                ended = self.launch("--administrator", DISPLAY=":0", ENDS_WITH=str(status))
                self.assertEqual((ended.returncode, ended.stdout), (status, ""))
                self.assertEqual(ended.stderr, f"ulmar-disc-setup: {text}\n")
                self.assertEqual(self.record("notify-send"),
                                 ["--icon=com.arven.UlmarDiscSetup", "ARVEN Ulmar Disc Setup", text]
                                 if on_the_desktop else None)

    def test_passes_on_the_exit_status_of_the_program(self):
        for status in (0, 1, 3, 143):
            with self.subTest(status):
                ended = self.launch("--administrator", DISPLAY=":0", ENDS_WITH=str(status))
                self.assertEqual((ended.returncode, ended.stderr), (status, ""))
                self.assertIsNone(self.record("notify-send"))

    def test_reports_that_pkexec_is_not_installed(self):
        (self.tools / "pkexec").unlink()
        ended = self.launch("--administrator", DISPLAY=":0")
        self.assertEqual(ended.returncode, 69)
        self.assertEqual(ended.stderr, 'ulmar-disc-setup: "pkexec" is not installed.\n')
        self.assertEqual(self.record("notify-send")[-1], '"pkexec" is not installed.')

    def test_sends_no_notification_if_standard_error_is_a_terminal(self):
        terminal, screen = os.openpty()
        self.addCleanup(os.close, terminal)
        with open(screen, "w", encoding="utf-8") as stderr:
            ended = subprocess.run([LAUNCHER, "--administrator"], env=self.base() | {"DISPLAY": ":0", "ENDS_WITH": "127"},
                                   stderr=stderr, timeout=20, check=False)
            self.assertEqual(ended.returncode, 127)
            self.assertTrue(os.read(terminal, 1000).startswith(b"ulmar-disc-setup: Refused: "))
        self.assertIsNone(self.record("notify-send"))

    def test_works_without_notify_send(self):
        (self.tools / "notify-send").unlink()
        ended = self.launch("--administrator", DISPLAY=":0", ENDS_WITH="127")
        self.assertEqual(ended.returncode, 127)
        self.assertEqual(ended.stderr.count("\n"), 1)

    def test_reports_that_it_needs_a_desktop(self):
        for environment in ({}, {"DISPLAY": ""}, {"WAYLAND_DISPLAY": "wayland-0"},  # a socket without a known folder
                            {"QT_QPA_PLATFORM": "xcb"}, {"QT_QPA_PLATFORM": "wayland;xcb"}):
            with self.subTest(environment):
                ended = self.launch("--administrator", **environment)
                self.assertEqual(ended.returncode, 1)
                self.assertEqual(ended.stderr, "ulmar-disc-setup: A graphical desktop is needed: neither DISPLAY nor "
                                               "WAYLAND_DISPLAY names one.\n")
        self.assertIsNone(self.record("pkexec"))

    def test_accepts_other_qt_platforms_without_a_display(self):
        self.launch("--administrator", QT_QPA_PLATFORM="vnc")
        self.assertEqual(self.record("pkexec"), [str(PROGRAM), "-envQT_QPA_PLATFORM=vnc"])


if __name__ == "__main__":
    LAUNCHER = sys.argv.pop(1)
    os.umask(0o022)
    unittest.main()
