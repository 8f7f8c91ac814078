"""The very bytes of the log-in, without the code that the client and the farm share."""

import socket
import struct

from farmtest import PATIENCE, client, equal, run, write_settings


def received(connection, size):
    data = b""
    while len(data) < size:
        piece = connection.recv(size - len(data))
        if not piece:
            break
        data += piece
    return data


def test():
    write_settings({"network": {"skipDirectoryAuthentication": "true", "authenticationUser": "nobody"}})
    with socket.create_server(("127.0.0.1", 0)) as server:
        server.settimeout(PATIENCE)
        # Only the low 16 bits of the port count.
        alertor = client(server.getsockname()[1] + 65536, "-user", "ü", "-pass", "pa\tß")
        connection, _ = server.accept()
        with connection:
            connection.settimeout(PATIENCE)
            header = received(connection, 13)
            kind, length, param, command = struct.unpack("<BiII", header)
            equal((kind, param, command), (0, 0, 401), "header of the log-in")
            # User and password are UTF-8 taken for Latin-1 and made UTF-8 once more.
            user = b"\xc3\x83\xc2\xbc"
            password = b"pa\t\xc3\x83\xc2\x9f"
            host = socket.gethostname().encode()
            equal(received(connection, length), b"\n".join([user, password, b"1", b"1", host, b""]), "log-in")
            alertor.quit()
            equal(connection.recv(1), b"", "what follows the log-in when the client quits")


run(test)
