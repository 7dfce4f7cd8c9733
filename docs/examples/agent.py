#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A small agent, written from agent-contract.md alone: it takes part, writes down what the pane
sends, and on SIGUSR1 flips its on/off state, stores it and reports it. On SIGUSR2 it says a
sentence in the pane's window, and takes it back the next time.

Each event is a JSON object on a line of its own, in the file that KORVEX_AGENT_LOG names or on
standard output. Needs GLib's Python bindings (Debian: python3-gi).
"""

import fcntl
import json
import os
import plistlib
import signal
import struct
from pathlib import Path

from gi.repository import Gio, GLib

OBJECT = "/org/korvex/AppleEvents"
EVENT = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.korvex.AppleEvents1"><method name="Event">
  <arg type="u" direction="in"/><arg type="u" direction="in"/><arg type="a(uuay)" direction="in"/>
  <arg type="i" direction="out"/>
</method></interface></node>""").interfaces[0]
DO_NOT_QUEUE, PRIMARY_OWNER = 4, 1
NOT_HANDLED, MISSING, WRONG_TYPE, WRONG_SIZE = -1708, -1701, -1700, -50

CONFIG = os.environ.get("XDG_CONFIG_HOME", "")
CONFIG = Path(CONFIG) if CONFIG.startswith("/") else Path.home() / ".config"
SETTINGS = CONFIG / "Preferences" / "org.korvex.Agent.plist"


def code(text):
    """A four-character code as a number: its first character is the highest byte."""
    return int.from_bytes(text.encode("ascii"), "big")


def process_name(signature):
    """The bus name of an application of that signature, but for the process ID."""
    return f"org.korvex.Process1.t{code('APPL'):08X}.s{code(signature):08X}.p"


class EventError(Exception):
    """What becomes of an event that can't be handled: its argument is the reply's result."""


def parameter(parameters, keyword, kind, layout):
    """The values of a parameter, which must be of that type and layout (see `struct`)."""
    if code(keyword) not in parameters:
        raise EventError(MISSING)
    found, data = parameters[code(keyword)]
    if found != code(kind):
        raise EventError(WRONG_TYPE)
    if len(data) != struct.calcsize(layout):
        raise EventError(WRONG_SIZE)
    return struct.unpack(layout, data)


def read_settings():
    """What is stored: empty without a file, None when it can't be read as settings."""
    try:
        settings = plistlib.loads(SETTINGS.read_bytes())
    except FileNotFoundError:
        return {}
    except Exception:  # the parsers raise whatever they like
        return None
    return settings if isinstance(settings, dict) else None


def store_setting(key, text):
    """Under the lock: reads afresh, changes one key, and puts a new file in the old one's place.
    A damaged file is left to its owner.
    """
    SETTINGS.parent.mkdir(mode=0o700, parents=True, exist_ok=True)
    flags = os.O_WRONLY | os.O_CREAT
    with open(os.open(f"{SETTINGS}.lock", flags, 0o600), "wb") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        settings = read_settings()
        if settings is None:
            return
        target = SETTINGS.resolve()
        with open(os.open(f"{target}.new", flags | os.O_TRUNC, 0o600), "wb") as new:
            new.write(plistlib.dumps({**settings, key: text}))
            new.flush()
            os.fsync(new.fileno())
        os.rename(f"{target}.new", target)


class Agent:
    def __init__(self, bus, loop, log):
        self.bus, self.loop, self.log = bus, loop, log
        self.on = True
        self.pane = None  # the bus name to report to, once a pane has said so
        self.pane_is_closed = False
        self.says = ""
        self.handlers = {
            (code("Krvx"), code("PPop")): self.pane_opened,
            (code("Krvx"), code("PPcl")): self.pane_closed,
            (code("Krvx"), code("SAPr")): self.set_all,
            (code("Krvx"), code("PPhd")): self.hold_keys,
            (code("aevt"), code("quit")): self.quit}

    def take_part(self):
        """Whether this is the session's one agent now."""
        self.bus.register_object(OBJECT, EVENT, self.called, None, None)  # before the name is seen
        return self.own("org.korvex.Agent") and self.own(process_name("Krvx") + str(os.getpid()))

    def read_state(self):
        """Once this process takes part: what a pane stores before is read, what it changes later is
        sent.
        """
        self.on = str((read_settings() or {}).get("on", "yes")).lower() in ("yes", "true", "1")

    def ask_bus(self, method, arguments):
        bus = "org.freedesktop.DBus"
        return self.bus.call_sync(bus, "/org/freedesktop/DBus", bus, method, arguments, None,
                                  Gio.DBusCallFlags.NONE, -1, None).unpack()[0]

    def own(self, name):
        request = GLib.Variant("(su)", (name, DO_NOT_QUEUE))
        return self.ask_bus("RequestName", request) == PRIMARY_OWNER

    def called(self, bus, sender, path, interface, method, arguments, invocation):
        event_class, event_id, parameters = arguments.unpack()
        parameters = {keyword: (kind, bytes(data)) for keyword, kind, data in parameters}
        handler = self.handlers.get((event_class, event_id))
        try:
            result = handler(parameters) if handler else NOT_HANDLED
        except EventError as error:
            result = error.args[0]
        invocation.return_value(GLib.Variant("(i)", (result,)))  # dropped when nobody waits for it

    def write(self, **event):
        self.log.write(json.dumps(event) + "\n")
        return 0

    def pane_opened(self, parameters):
        high, low = parameter(parameters, "tPSN", "psn ", "<II")
        self.pane, self.pane_is_closed = f":{high}.{low}", False
        return self.write(event="PPop", psn=[high, low])

    def pane_closed(self, parameters):
        self.pane_is_closed = True
        return self.write(event="PPcl")

    def set_all(self, parameters):
        record, = parameter(parameters, "----", "KrPf", "<340s")
        mask, = parameter(parameters, "Chng", "magn", "<I")
        self.on = record[0] != 0
        return self.write(event="SAPr", mask=mask, record=record.hex())

    def hold_keys(self, parameters):
        """An agent with grabs lets go of them while this is true, until the pane closes or ends."""
        hold, = parameter(parameters, "----", "bool", "<B")
        return self.write(event="PPhd", hold=hold != 0)

    def quit(self, parameters):
        self.loop.quit()
        return self.write(event="quit")

    def flip(self):
        self.on = not self.on
        store_setting("on", "yes" if self.on else "no")
        self.tell("PPon", "bool", bytes([self.on]))
        return GLib.SOURCE_CONTINUE

    def say(self):
        self.says = "" if self.says else "This agent hears no switch."
        self.tell("PPsy", "utf8", self.says.encode())
        return GLib.SOURCE_CONTINUE

    def tell(self, event_id, kind, data):
        """Sends the pane an event with a direct object, if one is open."""
        pane = self.pane or self.find_pane()
        if pane and not self.pane_is_closed:
            direct_object = [(code("----"), code(kind), data)]
            arguments = GLib.Variant("(uua(uuay))", (code("Krvx"), code(event_id), direct_object))
            self.bus.call(pane, OBJECT, EVENT.name, "Event", arguments, None,
                          Gio.DBusCallFlags.NO_AUTO_START, -1, None, None)

    def find_pane(self):
        """A pane that launched this agent told it nothing; its bus name tells what it is."""
        names = self.ask_bus("ListNames", None)
        return next((name for name in names if name.startswith(process_name("sprf"))), None)


def main():
    loop = GLib.MainLoop()
    with open(os.environ.get("KORVEX_AGENT_LOG", "/dev/stdout"), "a", buffering=1) as log:
        agent = Agent(Gio.bus_get_sync(Gio.BusType.SESSION), loop, log)  # ends with the session
        GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR1, agent.flip)
        GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR2, agent.say)
        if agent.take_part():
            agent.read_state()
            loop.run()


if __name__ == "__main__":
    main()
