"""The files of the installation, and the states in which a failed or killed save may leave them.

A state is a dictionary from paths to ("folder",), ("link", target) or ("file", text).
"""
import os
import re
import shutil
from pathlib import Path

INSTALLATION = Path("/opt/arven/Ulmar Disc Maker")
REGISTRY = "conf/registry.txt"
LOCAL_FILE = "conf/RegPublisher/L.ini"
MODE_KEYS = ["PublishMode", "Stacker3", "Stacker4"]  # in the order in which they are written

# Saves whose killed writer may leave a text from which the next start cannot make the complete one: the file, the form
# that the text has then, and what it contains. The other killed saves are completed.
TORN = {
    "registry-write": (REGISTRY, r'(\[[^]\n]+\]\n("[^"\n]*"=("[^"\n]*"|dword:[0-9a-f]{8})\n)*\n)*',
                       '"Probe"=dword:00000007\n'),
    "settings-write": (LOCAL_FILE, r"\[Common\]\n(\w+=.*\n)*",
                       "PublisherName=A new name that is longer than the old one\n"),
}

Entry = tuple
State = dict[str, Entry]


def tree(root: Path = INSTALLATION) -> State:
    state = {}
    for folder, folders, files in os.walk(root):
        for name in folders + files:
            path = Path(folder, name)
            key = str(path.relative_to(root))
            if path.is_symlink():
                state[key] = ("link", os.readlink(path))
            elif path.is_dir():
                state[key] = ("folder",)
            else:
                state[key] = ("file", path.read_bytes().decode("latin-1"))
    return state


def restore(state: State) -> None:
    present = tree()
    for key in sorted(set(present) - set(state), reverse=True):
        remove(INSTALLATION / key)
    for key in sorted(state):
        path, entry = INSTALLATION / key, state[key]
        if present.get(key) == entry and (path.exists() or path.is_symlink()):
            continue
        if path.is_symlink() or path.is_file() or (path.is_dir() and entry[0] != "folder"):
            remove(path)
        if entry[0] == "folder":
            path.mkdir(exist_ok=True)
            path.chmod(0o1777 if key == "JOB" else 0o755)
        elif entry[0] == "link":
            path.symlink_to(entry[1])
        else:
            path.write_bytes(entry[1].encode("latin-1"))


def remove(path: Path) -> None:
    if path.is_dir() and not path.is_symlink():
        shutil.rmtree(path)
    elif path.is_symlink() or path.exists():
        path.unlink()


def text_of(entry: Entry | None) -> str | None:
    return entry[1] if entry and entry[0] == "file" else None


def without_stamps(text: str) -> str:
    """The text of a job, which contains the time."""
    return re.sub(r"\d", "#", text)


def steps(scenario: str, key: str, old: str | None, new: str | None) -> list[str | None]:
    """The texts that a file has one after the other, each written with one call."""
    if scenario == "registry-write" and key == REGISTRY and new:
        # Without memory for the value, the key is created without it.
        return [old, re.sub(r'^"Probe"=.*\n', "", new, flags=re.MULTILINE), new]
    if scenario != "settings-mode" or key != LOCAL_FILE:
        return [old, new]
    texts = [old]
    for name in MODE_KEYS:
        texts.append(with_key_of(texts[-1], name, new))
    return texts


def with_key_of(text: str, name: str, new: str) -> str:
    """The text with a key of the new text, written over the old one, whose end stays if it is longer."""
    value = re.search(rf"^{name}=(.*)$", new, re.MULTILINE)[1]
    written = re.sub(rf"^{name}=.*$", f"{name}={value}", text, count=1, flags=re.MULTILINE)
    return written + text[len(written):]


def mode_texts(old: str, new: str) -> set[str]:
    """All texts that the setting file can have while the mode is changed. A write that stops in the middle is not
    noticed, and the following ones, also those of the next start, keep what it has left."""
    texts = {old}
    for damaged in range(len(MODE_KEYS)):
        for length in range(len(old) + 1):
            text = old
            for number, name in enumerate(2 * MODE_KEYS):
                written = with_key_of(text, name, new)
                text = written[:length] + text[length:] if number == damaged else written
                texts.add(text)
    return texts


def is_allowed_text(scenario: str, key: str, texts: list[str | None], found: str) -> bool:
    """A setting file is overwritten from its beginning and never truncated: the end of the old text may follow any
    part of the new one. The registry is truncated and then written: any part of the new text."""
    if scenario == "settings-mode" and key == LOCAL_FILE and found in mode_texts(texts[0], texts[-1]):
        return True
    if found in texts:
        return True
    for old, new in zip(texts, texts[1:]):
        if old == new or new is None:
            continue
        if key == REGISTRY:
            if new.startswith(found):
                return True
        elif any(found == new[:length] + (old or "")[length:] for length in range(len(new) + 1)):
            return True
    return False


def is_allowed(scenario: str, key: str, start: State, end: State, entry: Entry | None) -> bool:
    old, new = start.get(key), end.get(key)
    if entry in (old, new):
        return True
    if re.fullmatch(r"JOB/L_\d{4}\.epj", key) and scenario == "maintenance-local":
        # The job file is created empty and filled by one write. A number that cannot be opened is passed over.
        written = {without_stamps(text_of(value)) for name, value in end.items() if name.endswith(".epj")}
        return entry is None or text_of(entry) == "" or without_stamps(text_of(entry)) in written
    if key == "JOB" and scenario in ("common-settings", "job-folder"):
        return entry in (None, ("folder",), ("link", "/tmp/work/UlmarDiscMakerWork"))
    found = text_of(entry)
    return found is not None and is_allowed_text(
        scenario, key, steps(scenario, key, text_of(old), text_of(new)), found)


def unexpected(scenario: str, start: State, end: State, found: State) -> list[str]:
    """The files that are neither as at the start nor as at the end of the scenario, nor in a state between them that
    the format of the file allows."""
    wrong = []
    for key in sorted(set(start) | set(end) | set(found)):
        if not is_allowed(scenario, key, start, end, found.get(key)):
            wrong.append(f"{key} is {found.get(key)}")
    return wrong


def unexpected_after_kill(scenario: str, start: State, end: State, killed: State, final: State) -> list[str]:
    """The same after the next start. What a killed writer has cut off the registry, or mixed up in a setting file,
    stays lost: the file then only has to be readable and to contain what the scenario saves."""
    wrong = unexpected(scenario, start, end, final)
    if scenario not in TORN:
        return wrong
    key, shape, saved = TORN[scenario]
    if killed.get(key) in (start.get(key), end.get(key)):
        return wrong
    wrong = [fault for fault in wrong if not fault.startswith(key)]
    text = text_of(final.get(key)) or ""
    if not re.fullmatch(shape, text) or saved not in text:
        wrong.append(f"{key} is {text!r}")
    return wrong


def describe(scenario: str, start: State, end: State, found: State) -> str:
    """The state of the files that the scenario changes, in words."""
    words = []
    for key in sorted(set(start) | set(end) | set(found)):
        old, new, entry = start.get(key), end.get(key), found.get(key)
        if old == new == entry:
            continue
        if entry == old:
            words.append(f"{key} {'missing' if old is None else 'unchanged'}")
        elif entry == new:
            words.append(f"{key} {'removed' if new is None else 'complete'}")
        elif text_of(entry) and text_of(entry) in steps(scenario, key, text_of(old), text_of(new)):
            number = steps(scenario, key, text_of(old), text_of(new)).index(text_of(entry))
            words.append(f"{key} complete after write {number}")
        elif text_of(entry) == "":
            words.append(f"{key} empty")
        elif entry is None:
            words.append(f"{key} missing")
        elif key.endswith(".epj") and without_stamps(text_of(entry)) in {
                without_stamps(text_of(value)) for name, value in end.items() if name.endswith(".epj")}:
            words.append(f"{key} complete")
        else:
            words.append(f"{key} in part")
    return "; ".join(words) or "unchanged"
