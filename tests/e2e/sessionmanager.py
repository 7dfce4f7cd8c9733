# SPDX-License-Identifier: MIT
"""A session manager, as desktops have one: programs register with it, and it has them save. It
speaks the X Session Management Protocol through libSM, which Qt's X11 plugin brings with it."""

import ctypes
import os
import select
import threading
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

from tests.e2e.waiting import until

SAVE_BOTH, INTERACT_ANY = 2, 2  # SmSaveBoth, SmInteractStyleAny

Authorize = CFUNCTYPE(c_int, c_char_p)
NewClient = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), c_void_p, c_void_p)
Register = CFUNCTYPE(c_int, c_void_p, c_void_p, c_void_p)
SaveDone = CFUNCTYPE(None, c_void_p, c_void_p, c_int)
Other = CFUNCTYPE(None)  # one whose arguments don't matter

# The callbacks of a client in the order of SmsCallbacks, of which each is followed by its data.
REGISTER, SAVE_DONE, CALLBACKS = 0, 5, 10


class SessionManager:
    """Is there while it is entered, for programs that are started meanwhile."""

    def __enter__(self) -> "SessionManager":
        self._ice, self._sm = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
        for function in (self._ice.IceComposeNetworkIdList, self._sm.SmsGenerateClientID,
                         self._ice.IceAcceptConnection):
            function.restype = c_void_p
        self._client = None
        self._results: list[int] = []  # of the savings, in order; 1 is success
        self._lock = threading.Lock()  # the libraries know nothing of threads
        self._table = [Other(lambda: None) for _ in range(CALLBACKS)]
        self._table[REGISTER] = Register(self._register)
        self._table[SAVE_DONE] = SaveDone(lambda client, _, success: self._results.append(success))
        self._kept = (Authorize(lambda host: 1), NewClient(self._welcome), Other(lambda: None))
        self._ends = threading.Event()
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._listen()
        self._thread.start()
        return self

    def __exit__(self, *failure) -> None:
        self._ends.set()
        self._thread.join()
        del os.environ["SESSION_MANAGER"]

    def cancel_a_logout(self) -> None:
        """Has the program save as at the end of the session, which then goes on."""
        before = len(self._results)
        with self._lock:
            self._sm.SmsSaveYourself(c_void_p(self._client), SAVE_BOTH, True, INTERACT_ANY, False)
        until(lambda: len(self._results) > before and self._results[-1], "the program has saved")
        with self._lock:
            self._sm.SmsShutdownCancelled(c_void_p(self._client))

    def wait_for_client(self) -> None:
        until(lambda: self._results, "the program has registered and saved for the first time")

    def _listen(self) -> None:
        error = ctypes.create_string_buffer(200)
        authorize, welcome, ignore = self._kept
        self._ice.IceSetIOErrorHandler(ignore)  # libICE's own ends this process with the client
        count, objects = c_int(), POINTER(c_void_p)()
        started = self._sm.SmsInitialize(b"Korvex", b"1", welcome, None, authorize, 200, error)
        if not started or not self._ice.IceListenForConnections(
            byref(count), byref(objects), 200, error
        ):
            raise OSError(error.value.decode())
        self._listeners = [c_void_p(objects[number]) for number in range(count.value)]
        for listener in self._listeners:
            self._ice.IceSetHostBasedAuthProc(listener, authorize)
        names = self._ice.IceComposeNetworkIdList(count, objects)
        os.environ["SESSION_MANAGER"] = ctypes.string_at(names).decode()

    def _serve(self) -> None:
        number_of = self._ice.IceGetListenConnectionNumber
        listeners = {number_of(listener): listener for listener in self._listeners}
        connections: dict[int, c_void_p] = {}
        while not self._ends.is_set():
            ready = select.select([*listeners, *connections], [], [], 0.05)[0]
            with self._lock:
                for file in ready:
                    if file in listeners:
                        accepted = self._ice.IceAcceptConnection(listeners[file], byref(c_int()))
                        connection = c_void_p(accepted)
                        connections[self._ice.IceConnectionNumber(connection)] = connection
                    elif self._ice.IceProcessMessages(connections[file], None, None) != 0:
                        del connections[file]  # the program has gone

    def _welcome(self, client, _data, mask, callbacks, _reason) -> int:
        mask[0] = (1 << CALLBACKS) - 1
        slots = ctypes.cast(callbacks, POINTER(c_void_p))
        for number, function in enumerate(self._table):
            slots[2 * number] = ctypes.cast(function, c_void_p)
            slots[2 * number + 1] = None
        return 1

    def _register(self, client, _data, _previous) -> int:
        self._client = client
        name = c_void_p(self._sm.SmsGenerateClientID(c_void_p(client)))
        self._sm.SmsRegisterClientReply(c_void_p(client), name)
        # A program that is new saves once, so that it can be started again.
        self._sm.SmsSaveYourself(c_void_p(client), 1, False, 0, False)
        return 1
