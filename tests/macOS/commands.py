"""The compiler's commands of a build folder that was configured with toolchain.cmake."""
import json
import pathlib
import re
import shlex
import subprocess
import tempfile


def sources(entry):
    """What a command compiles: a file, or all those that a file of CMake's includes."""
    path = pathlib.Path(entry["file"])
    if path.parent.name != "Unity":
        return [path]
    return [pathlib.Path(included) for included in re.findall(r'#include "(.*)"', path.read_text())]


def by_source(folder):
    """The command of each source file."""
    entries = json.loads((pathlib.Path(folder) / "compile_commands.json").read_text())
    return {path: entry for entry in entries for path in sources(entry)}


def run(entry, source, flags, original="", replacement="", system=None):
    """Has the compiler look at one source, where one text of it is another one, or for an older system."""
    text, command = source.read_text(), entry["command"]
    assert original in text, f"{source.name} has no {original} any more"
    if system:
        command, count = re.subn(r"-mmacosx-version-min=\S+", f"-mmacosx-version-min={system}", command)
        assert count == 1
    with tempfile.TemporaryDirectory() as folder:
        changed = pathlib.Path(folder) / source.name
        changed.write_text(text.replace(original, replacement) if original else text)
        words = shlex.split(command)
        words[words.index("-o") + 1] = "/dev/null"
        words[words.index("-c") + 1] = str(changed)
        return subprocess.run(words + flags, cwd=entry["directory"], capture_output=True, text=True)
