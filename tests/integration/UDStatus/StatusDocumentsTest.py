#!/usr/bin/env python3
"""StatusDocumentsTest.py PART PROGRAM UDSIM: checks what ulmar-disc-status prints for other programs, inside the sandbox.

schema      the JSON of every scenario, and of one with failures, against docs/ulmar-disc-status.schema.json
promtool    the metrics of every scenario; exits with 77, which skips the test, without promtool
completion  the bash completion
"""
import json
import os
import pty
import shutil
import signal
import socket
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parent.parent.parent
SCENARIOS = [*sorted((PROJECT / "sim" / "scenarios").glob("*.udsim")), HERE / "failures.udsim"]
SETTINGS = Path("/opt/arven/Ulmar Disc Maker/conf/RegPublisher")
SKIPPED = 77

part, program, udsim = sys.argv[1:]


class Room:
    """A running udsim with the publishers of one scenario."""

    def __init__(self, scenario: Path):
        shutil.rmtree("/opt/arven", ignore_errors=True)
        self.process = subprocess.Popen([udsim, scenario, "--speed", "20"], stdout=subprocess.PIPE, text=True)
        for line in self.process.stdout:
            if line.startswith("udsim: ready"):
                return
        sys.exit(f"udsim did not start with {scenario}")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGTERM)
        self.process.communicate()


def run(*arguments: str, code: tuple[int, ...] = (0, 1)) -> str:
    done = subprocess.run([program, *arguments], capture_output=True, text=True, check=False)
    if done.returncode not in code:
        sys.exit(f"{arguments} exits with {done.returncode}: {done.stderr}")
    return done.stdout


def check_schema() -> None:
    import jsonschema

    schema = json.loads((PROJECT / "docs" / "ulmar-disc-status.schema.json").read_text(encoding="utf-8"))
    validator = jsonschema.Draft202012Validator(schema)
    validator.check_schema(schema)
    seen = set()
    for scenario in SCENARIOS:
        with Room(scenario):
            document = json.loads(run("--json"))
        validator.validate(document)
        assert document["publishers"], scenario
        seen |= {publisher["status"] for publisher in document["publishers"]}
        print(f"{scenario.name}: {len(document['publishers'])} publishers")
        # The schema must refuse what it does not describe.
        spoiled = json.loads(json.dumps(document))
        spoiled["publishers"][0]["surprise"] = 1
        assert not validator.is_valid(spoiled)
        spoiled = json.loads(json.dumps(document))
        spoiled["publishers"][0]["status"] = "Bereit"
        assert not validator.is_valid(spoiled)
    # A server that accepts connections and never replies.
    with Room(HERE / "failures.udsim"), socket.create_server(("127.0.0.99", 80)):
        (SETTINGS / "silent.ini").write_text(
            "[Common]\nPublisherName=Silent\nPublisherConnectionType=1\nPublisherURL=127.0.0.99\n", encoding="utf-8")
        document = json.loads(run("--json", "--timeout", "0.5", code=(1,)))
    validator.validate(document)
    seen |= {publisher["status"] for publisher in document["publishers"]}
    assert {"no-answer", "ready", "not-connected", "error", "administrator-not-registered", "unsupported-version"} <= seen, seen


def check_promtool() -> None:
    if not shutil.which("promtool"):
        print("promtool is not installed: Debian package prometheus")
        sys.exit(SKIPPED)
    for scenario in SCENARIOS:
        with Room(scenario):
            text = run("--metrics")
        checked = subprocess.run(["promtool", "check", "metrics"], input=text, capture_output=True, text=True,
                                 check=False)
        print(f"{scenario.name}: {checked.stdout}{checked.stderr}")
        assert checked.returncode == 0 and not checked.stderr, scenario
        assert text.endswith("\n# EOF\n") and "ulmar_publisher_up{" in text
    refused = subprocess.run(["promtool", "check", "metrics"], input="no metrics\n", capture_output=True, text=True,
                             check=False)
    assert refused.returncode != 0


def complete(*words: str) -> list[str]:
    """The completions of the last word."""
    script = f'source "{PROJECT}/packaging/ulmar-disc-status.bash"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); ' \
             '_ulmar_disc_status; [ ${#COMPREPLY[@]} -eq 0 ] || printf "%s\\n" "${COMPREPLY[@]}"'
    return subprocess.run(["bash", "-c", script, "bash", program, *words], capture_output=True, text=True,
                          check=True).stdout.splitlines()


PROMPT = "prompt>"
SHELL_SETTINGS = f"""
PS1='{PROMPT}'
source "{PROJECT}/packaging/ulmar-disc-status.bash"
bind -x '"\\C-t": printf %s "$READLINE_LINE" >/tmp/line; kill -KILL $$'
"""


def completed(word: str) -> str:
    """The line of an interactive shell after a tabulator key behind this word."""
    Path("/tmp/settings").write_text(SHELL_SETTINGS, encoding="utf-8")
    Path("/tmp/line").unlink(missing_ok=True)
    process, terminal = pty.fork()
    if process == 0:
        os.execve("/bin/bash", ["bash", "--rcfile", "/tmp/settings", "-i"],
                  {"PATH": f"{Path(program).parent}:{os.environ['PATH']}", "TERM": "dumb", "LC_ALL": "C.UTF-8",
                   "INPUTRC": "/dev/null", "HOME": "/tmp"})
    shown = b""
    typed = False
    try:
        while piece := os.read(terminal, 4096):
            shown += piece
            if PROMPT.encode() in shown and not typed:
                typed = True
                os.write(terminal, f"ulmar-disc-status {word}\t\x14".encode())
    except OSError:
        pass  # the shell has ended
    os.close(terminal)
    os.waitpid(process, 0)
    return Path("/tmp/line").read_text(encoding="utf-8")


def arguments_of(line: str) -> list[str]:
    """The arguments that a shell gives to the program for this line; none if a quote is open."""
    script = f"ulmar-disc-status() {{ printf '%s\\n' \"$@\"; }}\n{line}\n"
    return subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=False).stdout.splitlines()


def check_hostile_names() -> None:
    names = ["$(touch /tmp/ran)", "`touch /tmp/ran`", "q' | touch /tmp/ran '", 'd" | touch /tmp/ran "', "b\\", "h!x", "-w",
             "plain & name"]
    for number, name in enumerate(names):
        (SETTINGS / f"h{number}.ini").write_text(f"[Common]\nPublisherName={name}\nPublisherConnectionType=1\n",
                                                 encoding="utf-8")
    assert set(names) <= set(run("--names").splitlines()), run("--names")
    for name in names:
        for start in ("\\", '"', "'", f'{name[0]}"', f"{name[0]}'"):
            line = completed(start + name[0])
            arguments = arguments_of(line)
            assert not Path("/tmp/ran").exists(), (name, line)
            if len(start) == 1 and name != "-w":
                assert arguments == [name] or (start != "\\" and not arguments), (name, line, arguments)
    assert arguments_of(completed('"plain')) == ["plain & name"]
    assert arguments_of(completed("'plain")) == ["plain & name"]
    assert arguments_of(completed("'$")) == ["$(touch /tmp/ran)"]
    assert arguments_of(completed('"q')) == ["q' | touch /tmp/ran '"]
    assert "-w" not in complete("") and "-w" not in complete('"-'), complete("")
    assert complete("--", "-") == ["-w"] and complete("--", '"-') == ["-w"], complete("--", "-")


def check_completion() -> None:
    with Room(PROJECT / "sim" / "scenarios" / "demo.udsim"):
        assert complete("Stu") == ["Studio\\ 9", "Studio\\ 10", "Studio\\ A", "Studio\\ B"], complete("Stu")
        assert complete("Studio\\ 1") == ["Studio\\ 10"]
        assert complete('"Studio 1') == ["Studio 10"]
        assert complete("Lab", "Cl") == ["Clinic"]
        assert complete("nothing") == []
        assert complete("--m") == ["--metrics", "--monitor"]
        assert complete("--timeout", "S") == []
        options = {line.split()[0].rstrip(",") for line in run("--help").splitlines() if line.startswith("      --")}
        assert options <= set(complete("--")), options
        check_hostile_names()


{"schema": check_schema, "promtool": check_promtool, "completion": check_completion}[part]()
