"""The examples of docs/protocol.md, between the client and a Dispatcher that knows nothing but them."""

import os
import re
import socket
import struct

from desktop import write_template
from farmtest import PATIENCE, PRODUCT, client, equal, run, wait_for, windows

PAGE = os.path.join(os.path.dirname(__file__), "..", "..", "docs", "protocol.md")
HEADER = struct.Struct("<BiII")
TEMPLATE = "TEMPLATE_ID = 12\ndef onCustomDispatcherMessageToAlertor(message):\n    print('told', message.decode())\n"


def examples():
    """The frames on the page, by command, and the payload of the job's notification."""
    with open(PAGE, encoding="utf-8") as file:
        page = file.read()
    frames = {}
    for block in re.findall(r"(?:^    [0-9a-f]{4}  .*\n)+", page, re.MULTILINE):
        digits = re.findall(r"^    [0-9a-f]{4}  ((?:[0-9a-f]{2} )+)", block, re.MULTILINE)
        frame = bytes.fromhex("".join(digits))
        _, length, _, command = HEADER.unpack_from(frame)
        equal(len(frame), HEADER.size + length, f"size of the example {block}")
        frames.setdefault(command, []).append(frame)
    text = re.search(r"^    shot_010 is done\n(?:    .*\n)+", page, re.MULTILINE).group()
    return frames, re.sub(r"^    ", "", text, flags=re.MULTILINE).encode() + b"\n"


def test():
    frames, payload = examples()
    equal({command: len(list_) for command, list_ in frames.items()}, {401: 1, 402: 1, 601: 2, 603: 1, 604: 1}, "examples")
    write_template("told.py", TEMPLATE)
    with socket.create_server(("127.0.0.1", 0)) as server:
        server.settimeout(PATIENCE)
        alertor = client(server.getsockname()[1], "-user", "ü", "-pass", "pw")
        connection, _ = server.accept()
        with connection, connection.makefile("rb") as stream:
            connection.settimeout(PATIENCE)
            _, length, _, _ = header = HEADER.unpack(stream.read(HEADER.size))
            equal(header[::3], (0, 401), "header of the log-in")
            log_in = frames[401][0][HEADER.size :].replace(b"ws1", socket.gethostname().encode())
            equal(stream.read(length), log_in, "log-in")
            job = HEADER.pack(1, len(payload), 0, 601) + payload
            connection.sendall(b"".join([*frames[601], *frames[604], job, *frames[603]]))
            alertor.expect(r'event \d type 512 "blade-40 joined"', 2)
            alertor.expect(r'event 3 type 1 "shot_010 is done"')
            alertor.expect('^told {"ask": "host"}$')
            wait_for(lambda: windows(PRODUCT), "the box that tells of the refusal")
            equal(stream.read(1), b"", "what follows the log-in when the client hangs up")
    alertor.quit()


run(test)
