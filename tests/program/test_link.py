"""A farm's server that sends poison, a foreign one and a proxy in between: the client stays in step, and says why."""

import base64
import os
import socket
import struct
import threading
import time
import zlib

import farmtest
from farmtest import PATIENCE, Program, check, client, equal, run, wait_for, write_settings

LOG = os.path.join(os.environ["HOME"], ".local", "state", "tarrow-alertor", "alertor.log")
TEMPLATE_BURST = """
import alertor
def onCustomDispatcherMessageToAlertor(message):
    accepted = [i for i in range(int(message)) if alertor.send(700, (b"%d " % i).ljust(1000, b"p"))]
    print("accepted", len(accepted), sum(accepted), flush=True)
TEMPLATE_ID = 5
"""


def frame(payload, kind=1, command=601, length=None):
    return struct.pack("<BiII", kind, len(payload) if length is None else length, 0, command) + payload


def event(text):
    return frame(f"{text}\n512\n1700000000\n\n\n\n\n".encode())


def log():
    with open(LOG, encoding="utf-8") as file:
        return file.read()


POISON = {
    "over 1 MiB": frame(b"x" * 5_000_000),
    "compressed message is damaged": frame(struct.pack("<i", 40) + b"no zlib stream", kind=2),
    "length that no Dispatcher sends": frame(b"x" * 100, length=790_000_000),
    "it sent SSH": b"SSH-2.0-OpenSSH_9.2p1\r\n",
    "it sent HTTP": b"HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n",
    "negative size": frame(struct.pack("<i", -1) + zlib.compress(b"a"), kind=2),
}


class Server:
    """Takes one connection after the other, and keeps what came over the last."""

    def __init__(self, address="127.0.0.1"):
        self._server = socket.create_server((address, 0))
        self._server.settimeout(PATIENCE)
        self.port = self._server.getsockname()[1]
        self.received = bytearray()
        self.pause = 0
        self._link = None

    def link(self):
        """The connection; the client's next one when it hung up."""
        if self._link is None:
            self._link, _ = self._server.accept()
            self.received = bytearray()
            threading.Thread(target=self._read, args=(self._link,), daemon=True).start()
        return self._link

    def _read(self, link):
        try:
            while data := link.recv(65536):
                self.received += data
                time.sleep(self.pause)
        except OSError:
            pass
        if self._link is link:
            self._link = None

    def send(self, data):
        try:
            self.link().sendall(data)
        except OSError:
            self._link = None


def survives_poison(server, alertor):
    for number, (cause, poison) in enumerate(POISON.items()):
        server.send(poison + event("maybe lost") + event("maybe cut")[:9])
        server.send(event("maybe cut")[9:])
        for attempt in range(400):
            server.send(event(f"after {number}"))
            if alertor.sees(f'"after {number}"', patience=0.1):
                break
        check(attempt < 200, f"no event came after: {cause}")
        wait_for(lambda: cause in log(), f"the log to name: {cause}")


def numbers_received(server):
    numbers = []
    at = 0
    while at + 1013 <= len(server.received):
        _, length, _, command = struct.unpack_from("<BiII", server.received, at)
        if command == 700:
            numbers.append(int(server.received[at + 13 : at + 13 + length].split(b" ")[0]))
        at += 13 + length
    return numbers


def burst(server, alertor, count, number):
    """Has a template send messages; gives those that it was told would arrive."""
    server.received.clear()
    server.send(frame(b"5\n%s\n" % base64.b64encode(b"%d" % count), command=604))
    alertor.expect("^accepted ", number)
    accepted, total = map(int, alertor.matching("^accepted ")[-1].split()[1:])
    wait_for(lambda: len(server.received) >= accepted * 1013, "the messages that were accepted")
    numbers = numbers_received(server)
    equal((len(numbers), sum(numbers)), (accepted, total), "messages of a burst")
    equal(numbers, sorted(numbers), "their order")
    return accepted


def bursts_arrive(server, alertor):
    equal(burst(server, alertor, 1499, 1), 1499, "accepted messages")
    # A Dispatcher that reads, but slowly, is no dead one: what was accepted is not given up.
    server.pause = 0.03
    check(burst(server, alertor, 20_000, 2) < 20_000, "all of a burst was accepted: it was too small")
    server.pause = 0


def test():
    templates = os.path.join(os.environ["HOME"], ".Tarrow9", "templates")
    os.makedirs(templates, exist_ok=True)
    with open(os.path.join(templates, "burst.py"), "w", encoding="utf-8") as file:
        file.write(TEMPLATE_BURST)
    # Nothing is configured: nobody is called.
    fresh = Program("the fresh client", [farmtest.CLIENT], {"QT_LOGGING_RULES": "tarrow.app.debug=true"})
    fresh.expect("^tarrow.app: OpenGL ")
    fresh.quit()
    check("127.0.0.1" not in log(), "a client that was never configured tried to connect")

    # The machine's own name: local addresses are exempt from proxies.
    server, proxy = Server("0.0.0.0"), Server()
    address = f" {socket.gethostname()}:{server.port} "
    write_settings({"network": {"dispatcherAddress": f'"{address}"', "dispatcherPort": "1"}})
    alertor = Program(
        "the client",
        [farmtest.CLIENT],
        {"QT_LOGGING_RULES": "tarrow.notify.info=true", "http_proxy": f"http://127.0.0.1:{proxy.port}"},
    )
    survives_poison(server, alertor)
    bursts_arrive(server, alertor)
    alertor.quit()
    proxy._server.settimeout(0.01)
    try:
        proxy._server.accept()
        check(False, "the proxy was called")
    except TimeoutError:
        pass


run(test)
