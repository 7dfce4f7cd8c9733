# SPDX-License-Identifier: MIT
"""The commands, against no window and against an open one, in a fresh home on a private bus."""

import json
import os
import resource
import shutil
import signal
import socket
import subprocess
import sys
import time

HOST, LOG = sys.argv[1], os.path.expanduser("~/agent.log")
STORED = os.path.expandvars("$XDG_CONFIG_HOME/Preferences/org.korvex.Agent.plist")
ENVIRONMENT = dict(os.environ, KORVEX_AGENT_LOG=LOG)
ENVIRONMENT.pop("DISPLAY", None)


def run(*arguments, status=0):
    result = subprocess.run([HOST, *arguments], env=ENVIRONMENT, capture_output=True, text=True,
                            timeout=20)
    assert result.returncode == status, (arguments, result)
    return result.stdout + result.stderr


def expect(text, *arguments, status=0):
    output = run(*arguments, status=status)
    assert text in output, (arguments, output)


def sent():
    """The changes that the agent was sent."""
    lines = [json.loads(line) for line in open(LOG)] if os.path.exists(LOG) else []
    return [line for line in lines if line["event"] == "SAPr"]


def changes():
    return [event["mask"] for event in sent()]


def wait_for(condition):
    end = time.monotonic() + 10
    while not condition():
        assert time.monotonic() < end
        time.sleep(0.02)


COMPLETED = {
    "profile compare Ti": "Tired",
    "ex": "export",
    "get soundL": "soundLevel",
    "reset a": "all;activateAtLaunch",
    "set on of": "off",
    "set on off scanner.scanMode Ho": "Hold to scan, let go to choose",
    "set on off soundL": "soundLevel",
    "import 'a\\ f'": "a file",
}


def without_a_window():
    run("set", "scanner.lineScanTime", "12.5", "scanner.scanMode", "2")
    expect('"value": 12.5', "get", "--json", "scanner.lineScanTime")
    expect("outside 1 to 60 seconds", "set", "soundLevel", "7", "scanner.lineScanTime", "61",
           status=1)
    expect("50", "get", "soundLevel")  # of several changes none was made
    expect("no setting", "get", "nonsense", status=1)
    expect("no/all.plist: No such file", "export", "no/all.plist", status=1)
    expect("no command", "nonsense", status=2)
    rows = {each["key"]: each for each in json.loads(run("list", "--json"))}
    keys = list(rows)
    assert len(keys) == 41
    time = rows["scanner.lineScanTime"]
    assert (time["min"], time["max"], time["value"]) == (1, 60, 12.5), time
    expect("Scanning with Korvex (off | on); default: on", "list")
    run("profile", "save", "Tired")
    run("reset", "all")
    run("profile", "save", "Rested")
    expect("“Each press moves one step” to “Press to start", "profile", "compare", "Tired", "Rested")
    expect('"from": "10.0 sec", "to": "12.5 sec"', "profile", "compare", "Tired", "--json")
    expect("there is no profile", "profile", "compare", "Nobody", "Tired", status=1)
    expect("10\n", "get", "scanner.lineScanTime")
    expect("Line crosses the screen in: 10.0 to 12.5 sec", "profile", "use", "Tired")
    run("set", "soundLevel", "49")
    expect("Tired (in use, changed)", "profile", "list")
    expect("Volume: 49 to 50", "profile", "use", "Tired")
    tired = {"name": "Tired", "inUse": True, "changed": False}
    assert tired in json.loads(run("profile", "list", "--json"))
    run("export", "all.plist")
    assert os.stat("all.plist").st_mode & 0o777 == 0o600, "others can read an export"
    run("reset", "scanner.lineScanTime")
    with open("all.plist") as file:
        text = file.read().replace("<key>on<", "<key>off<")
    with open("all.plist", "w") as file:
        file.write(text)
    expect("Left out: off: no setting of this version", "import", "all.plist")
    expect('"from": "10.0 sec", "to": "12.5 sec"', "import", "--json", "all.plist")
    expect("Usage: ", "import", "--help")
    expect("10\n", "get", "scanner.lineScanTime")
    run("import", "--yes", "all.plist")
    expect("12.5\n", "get", "scanner.lineScanTime")
    run("set", "launchAtLogin", "off")
    manual, completion = run("manual"), run("completion")
    assert all(f".B {key}\n" in manual for key in keys) and f"'{' '.join(keys)}'" in completion
    assert "'scanning presses look palette general'" in completion
    open("a file", "w").close()
    for words, offered in COMPLETED.items():
        ask = (f"COMP_WORDS=({HOST} {words}); COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))\n"
               "_korvex_preferences; printf '%s;' \"${COMPREPLY[@]}\"")
        answer = subprocess.run(["bash"], input=completion + ask, text=True, check=True,
                                env=ENVIRONMENT, stdout=subprocess.PIPE)
        assert answer.stdout == offered + ";", (words, answer)
    expect("there is no section \"pallete\", but scanning", "show", "pallete", status=1)


def the_login_entry_follows_as_by_a_click():
    """Also where the desktop's own tool has switched it off, and the setting is the same."""
    entry = os.path.expandvars("$XDG_CONFIG_HOME/autostart/org.korvex.Agent.desktop")
    run("set", "launchAtLogin", "on")
    for command in (("set", "launchAtLogin", "on"), ("reset", "launchAtLogin"),
                    ("import", "--yes", "all.plist")):
        with open(entry, "a") as file:
            file.write("Hidden=true\n")
        run("set", "soundLevel", "50")
        assert "Hidden" in open(entry).read(), "another setting doesn't switch it on"
        run(*command)
        assert "Hidden" not in open(entry).read(), command
    run("set", "launchAtLogin", "off")


def what_get_prints_set_takes():
    """Exactly, in every language."""
    run("set", "scanner.lineScanTime", "12.26", "soundLevel", "33", "scanner.lineColor", "#112233",
        "palette.buttonContent", "2", "scanner.interClickDelay", "0.05", "on", "0",
        "scanner.scanArea", "origin(10,20); size(300,200)", "scanner.scanMode", "1")
    before, keys = run("export", "-"), [each["key"] for each in json.loads(run("list", "--json"))]
    printed = set()
    for language in ("en", "de", "fr"):
        ENVIRONMENT.update(LANGUAGE=language, LANG="C.UTF-8")
        values = run("get", *keys).splitlines()
        printed.add(tuple(values))
        run("reset", "all")
        run("set", *(word for pair in zip(keys, values) for word in pair))
        assert run("export", "-") == before, language
    assert len(printed) == 1 and "12.26" in values and "#112233" in values, printed
    ENVIRONMENT.update(LANGUAGE="en")
    asked = run("reset", "--json", "all")
    assert {"key": "on", "from": "off", "to": "on"} in json.loads(asked), asked
    document = subprocess.run([HOST, "import", "-", "--yes", "--json"], input=before, text=True,
                              env=ENVIRONMENT, stdout=subprocess.PIPE, check=True)
    assert {"key": "on", "from": "on", "to": "off"} in json.loads(document.stdout), document
    assert run("export", "-") == before
    changed = json.loads(run("set", "--json", "on", "yes", "soundLevel", "33"))
    assert changed == [{"key": "on", "from": "off", "to": "on"}], changed
    assert json.loads(run("export", "--json", "all.plist"))["file"].endswith("/all.plist")
    expect("--json", "export", "--json", "-", status=2)


def what_is_full_or_hangs_is_told():
    with open("/dev/full", "w") as full:
        for command in (("export", "-"), ("list",), ("get", "on"), ("help",)):
            result = subprocess.run([HOST, *command], env=ENVIRONMENT, stdout=full,
                                    stderr=subprocess.PIPE, text=True)
            assert result.returncode == 1 and "No space left" in result.stderr, result
    with socket.socket(socket.AF_UNIX) as bus:
        bus.bind("bus")
        bus.listen()
        hanging = dict(ENVIRONMENT, DBUS_SESSION_BUS_ADDRESS="unix:path=" + os.path.abspath("bus"))
        for command in (("set", "soundLevel", "34"), ("profile", "save", "Hurried")):
            start = time.monotonic()
            subprocess.run([HOST, *command], env=hanging, check=True, timeout=20)
            assert time.monotonic() - start < 4, command
    expect("34", "get", "soundLevel")
    expect("Hurried (in use)", "profile", "list")
    run("profile", "delete", "Hurried")
    run("reset", "all")


def folders_that_lead_to_themselves_are_told():
    for folder in (os.path.dirname(STORED), os.path.expandvars("$XDG_STATE_HOME/korvex"),
                   os.path.expandvars("$XDG_DATA_HOME/korvex/profiles")):
        aside = folder + ".aside"
        os.makedirs(folder, exist_ok=True)
        os.rename(folder, aside)
        os.symlink(folder, folder)
        outputs = [subprocess.run([HOST, *command], env=ENVIRONMENT, capture_output=True, text=True,
                                  timeout=20)
                   for command in (("set", "soundLevel", "35"), ("profile", "save", "Looped"))]
        assert all(each.returncode in (0, 1) for each in outputs), outputs
        assert any("Too many levels" in each.stderr for each in outputs), outputs
        os.remove(folder)
        os.rename(aside, folder)
    run("set", "soundLevel", "49")


def what_goes_wrong_loses_nothing():
    data, state = (os.environ[f"XDG_{name}_HOME"] for name in ("DATA", "STATE"))
    files = ("all.plist", f"{data}/korvex/profiles/Tired.plist", STORED)
    before = [open(file).read() for file in files]
    for command in (("export", "all.plist"), ("profile", "save", "Tired"), ("reset", "all")):
        cut = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (400, 400))  # in bytes
        dying = subprocess.Popen([HOST, *command], env=ENVIRONMENT, preexec_fn=cut)
        assert dying.wait(20) == -signal.SIGXFSZ, "it isn't killed in the middle of writing"
        assert [open(file).read() for file in files] == before, command
    os.mkfifo("pipe")
    os.symlink("pipe", "link")
    expect("Operation not supported", "export", "link", status=1)  # which would be lost
    shutil.rmtree(f"{state}/korvex")
    with open(f"{state}/korvex", "w"):
        expect("which profile is in use can't be kept: ", "profile", "use", "Tired", status=1)
    expect("50", "get", "soundLevel")
    os.remove(f"{state}/korvex")


def with_an_open_window():
    window = subprocess.Popen([HOST], env=dict(ENVIRONMENT, QT_QPA_PLATFORM="offscreen"))
    try:
        wait_for(lambda: os.path.exists(LOG))
        before = run("get", "soundLevel")
        wait_for(lambda: not run("set", "soundLevel", "77") and 0x10 in changes())
        run("profile", "use", "Tired")
        run("set", "soundLevel", "78", "palette.borderGap", "9")
        wait_for(lambda: 0x18 in changes())
        wait_for(lambda: run("get", "soundLevel") == "78\n")
        assert "0x0000004e" not in open(STORED).read(), "it is stored by another than the window"
        window.terminate()
        assert window.wait(10) == 0
        assert before != run("get", "soundLevel") == "78\n"
    finally:
        window.kill()


def many_at_once():
    """Without a window, but with an agent."""
    places = {"soundLevel": 8, "palette.borderGap": 304, "palette.buttonGap": 308,
              "scanner.lineThickness": 144}
    for value in range(31, 37):
        together = [subprocess.Popen([HOST, "set", key, str(value)], env=ENVIRONMENT)
                    for key in places]
        assert not any(each.wait(20) for each in together)
        assert all(text.split()[0] == str(value) for text in run("get", *places).splitlines())
        record = lambda: bytes.fromhex(sent()[-1]["record"])
        wait_for(lambda: all(record()[place] == value for place in places.values()))


os.chdir(os.path.expanduser("~"))
without_a_window()
the_login_entry_follows_as_by_a_click()
what_get_prints_set_takes()
what_is_full_or_hangs_is_told()
folders_that_lead_to_themselves_are_told()
what_goes_wrong_loses_nothing()
with_an_open_window()
many_at_once()
