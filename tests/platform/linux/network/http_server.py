#!/usr/bin/env python3
"""An HTTP server of every kind of behaviour, one for each path, on the loopback addresses.

Prints its port; ends when its standard input is closed. /seen answers with the paths asked for so far, /poured with how
many bytes the endless answer before found a taker for.
"""

import gzip
import socket
import struct
import sys
import threading
import time
import zlib

XML = "<root><configCode>M (x)</configCode></root>"
LIMIT = 64 * 1024
CHUNKED = b"Transfer-Encoding: chunked\r\n\r\n"
seen = []
poured = []


def answer(body, status="200 OK", **headers):
    lines = [f"HTTP/1.1 {status}", f"Content-Length: {len(body)}", "Connection: close"]
    lines += [f"{name.replace('_', '-')}: {value}" for name, value in headers.items()]
    return ("\r\n".join(lines) + "\r\n\r\n").encode() + body


def redirection(address):
    return answer(b"", "302 Found", Location=address)


def fixed(port, other_port):
    return {
        "/ok": answer(b"hello"),
        "/empty": answer(b""),
        "/chunked": b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nhel\r\n2\r\nlo\r\n0\r\n\r\n",
        "/until-close": b"HTTP/1.0 200 OK\r\n\r\nhello",
        "/cut": b"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhello",
        "/cut-chunk": b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n9\r\nhel",
        "/404": answer(XML.encode(), "404 Not Found"),
        "/500": answer(XML.encode(), "500 Internal Server Error"),
        "/204": answer(b"", "204 No Content"),
        "/401": answer(XML.encode(), "401 Unauthorized", WWW_Authenticate='Basic realm="x"'),
        "/no-http": b"hello\r\n\r\n",
        "/longest": answer(b"x" * LIMIT),
        "/too-long": answer(b"x" * (LIMIT + 1)),
        "/gzip": answer(gzip.compress(b"hello"), Content_Encoding="gzip"),
        "/gzip-bomb": answer(gzip.compress(bytes(50_000_000), 1), Content_Encoding="gzip"),
        "/no-gzip": answer(b"hello", Content_Encoding="gzip"),
        "/odd-encoding": answer(b"hello", Content_Encoding="odd"),
        "/deflate": answer(zlib.compress(b"hello"), Content_Encoding="deflate"),
        "/redirect": redirection("/ok"),
        "/redirect-cookie": answer(b"", "302 Found", Location="/headers", Set_Cookie="a=b; Path=/"),
        "/redirect-host": redirection(f"http://127.0.0.2:{port}/other-service"),
        "/redirect-port": redirection(f"http://127.0.0.1:{other_port}/other-service"),
        "/redirect-tls": redirection(f"https://127.0.0.1:{port}/tls"),
        "/redirect-file": redirection("file:///etc/hostname"),
        "/redirect-loop": redirection("/redirect-loop"),
        "/sp/product?cc=F5YX&lang=en_US": answer(XML.encode()),
        "/xml": answer(XML.encode(), Content_Type="text/xml"),
        "/xml-gzip": answer(gzip.compress(XML.encode()), Content_Encoding="gzip"),
        "/xml-gzip-cut": answer(gzip.compress(XML.encode())[:-20], Content_Encoding="gzip"),
        "/xml-br": answer(XML.encode(), Content_Encoding="br"),
        "/xml-broken": answer(XML.removesuffix("</root>").encode()),
        "/xml-utf16": answer(XML.encode("utf-16")),
        "/xml-latin1": answer(('<?xml version="1.0" encoding="ISO-8859-1"?>' + XML.replace("x", "\xe9")).encode("latin-1"),
                              Content_Type="text/xml; charset=utf-8"),
        "/xml-not-utf8": answer(XML.replace("x", "\xe9").encode("latin-1")),
        "/xml-unknown-encoding": answer(('<?xml version="1.0" encoding="x-none"?>' + XML).encode()),
        "/xml-wrong-declaration": answer(('<?xml version="1.0" encoding="UTF-16"?>' + XML).encode()),
    }


def a_byte_a_second(connection):
    for byte in answer(b"hello"):
        connection.sendall(bytes([byte]))
        time.sleep(1)


def slow_body(connection):
    connection.sendall(b"HTTP/1.1 200 OK\r\n\r\n")
    while True:
        connection.sendall(b"x")
        time.sleep(1)


def endless(start, more):
    def behaviour(connection):
        connection.sendall(b"HTTP/1.1 200 OK\r\n" + start)
        poured.append(0)
        while True:
            connection.sendall(more)
            poured[-1] += len(more)
    return behaviour


def hang_after_answer(connection):
    connection.sendall(answer(b"hello"))
    time.sleep(30)


def reset(connection):
    connection.sendall(b"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhello")
    time.sleep(0.1)
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


def reset_at_once(connection):
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


ACTIVE = {"/slow": a_byte_a_second, "/slow-body": slow_body, "/endless": endless(b"\r\n", b"x" * 65536),
          "/endless-head": endless(b"", b"X-Header: " + b"x" * 1000 + b"\r\n"),
          "/endless-extension": endless(CHUNKED + b"1;", b"x" * 65536),
          "/endless-extensions": endless(CHUNKED, b"1;" + b"x" * 1000 + b"\r\nx\r\n"),
          "/endless-trailer": endless(CHUNKED + b"0\r\n", b"X-Header: " + b"x" * 1000 + b"\r\n"),
          "/endless-continue": endless(b"\r\n", b"HTTP/1.1 100 Continue\r\n\r\n" * 1000),
         
          "/hang-after-answer": hang_after_answer, "/reset": reset, "/reset-at-once": reset_at_once, "/silent": lambda connection: time.sleep(30)}


def request_of(connection):
    request = b""
    while b"\r\n\r\n" not in request:
        part = connection.recv(65536)
        if not part:
            return ""
        request += part
    return request.decode("latin-1")


def serve(connection, answers):
    with connection:
        try:
            request = request_of(connection)
            path = request.split(" ")[1] if " " in request else ""
            if path == "/seen":
                connection.sendall(answer("\n".join(seen).encode()))
                return
            if path == "/poured":
                connection.sendall(answer(str(poured[-1]).encode()))
                return
            seen.append(path)
            if path == "/headers":
                connection.sendall(answer(request.encode("latin-1")))
            elif path in ACTIVE:
                ACTIVE[path](connection)
            else:
                connection.sendall(answers.get(path, answer(b"", "404 Not Found")))
        except OSError:
            pass  # the client has gone, as some cases want it to


def main():
    own, other_port = (socket.create_server(("127.0.0.1", 0)) for _ in range(2))
    port = own.getsockname()[1]
    other_host = socket.create_server(("127.0.0.2", port))
    answers = fixed(port, other_port.getsockname()[1])

    def accept(listener):
        while True:
            threading.Thread(target=serve, args=(listener.accept()[0], answers), daemon=True).start()

    for listener in (own, other_port, other_host):
        threading.Thread(target=accept, args=(listener,), daemon=True).start()
    print(port, flush=True)
    sys.stdin.read()


main()
