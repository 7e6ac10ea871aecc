"""A statistics service for tests: HTTPS with certificates of its own authority, answering as the test asks."""

import http.server
import socket
import ssl
import struct
import subprocess
import threading
from pathlib import Path


def openssl(*arguments):
    subprocess.run(["openssl", *arguments], check=True, capture_output=True)


def alternative_name(host):
    return f"subjectAltName={'IP' if host[0].isdigit() else 'DNS'}:{host}"


class Authority:
    """Makes certificates in a folder."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.certificate = self.folder / "authority.pem"
        openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "30",
                "-subj", "/CN=Test Authority", "-keyout", self.folder / "authority.key", "-out", self.certificate)

    def issue(self, name, host="127.0.0.1", days=30, subject=None):
        """The path of a file with key and certificate for a host; days below 0 make one that has expired."""
        key, request, chain = (self.folder / f"{name}.{end}" for end in ("key", "csr", "pem"))
        openssl("req", "-new", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                "-subj", f"/CN={subject or host}", "-keyout", key, "-out", request)
        extensions = self.folder / f"{name}.ext"
        extensions.write_text(alternative_name(host) + "\n")
        openssl("x509", "-req", "-in", request, "-CA", self.certificate, "-CAkey", self.folder / "authority.key",
                "-CAcreateserial", "-days", str(days), "-extfile", extensions, "-out", chain)
        chain.write_text(key.read_text() + chain.read_text())
        return chain

    def self_signed(self, name, host="127.0.0.1"):
        key, chain = self.folder / f"{name}.key", self.folder / f"{name}.pem"
        openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "30",
                "-subj", f"/CN={host}", "-addext", alternative_name(host), "-keyout", key, "-out", chain)
        chain.write_text(key.read_text() + chain.read_text())
        return chain


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        self.take()

    def do_GET(self):
        self.take()

    def take(self):
        body = self.rfile.read(int(self.headers.get("Content-Length", 0)))
        self.server.requests.append((self.command, self.path, self.headers.items(), body))
        self.server.behaviour(self)

    def log_message(self, *arguments):
        pass


def answers(status, body=b"", **headers):
    def behaviour(handler):
        handler.send_response(status)
        for name, value in headers.items():
            handler.send_header(name.replace("_", "-"), value)
        handler.send_header("Content-Length", str(len(body)))
        handler.end_headers()
        handler.wfile.write(body)
    return behaviour


def resets(handler):
    """Ends the connection without a word and without a goodbye."""
    handler.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
    handler.connection.shutdown(socket.SHUT_RDWR)
    handler.close_connection = True


def hangs_up_midway(handler):
    handler.send_response(200)
    handler.send_header("Content-Length", "1000")
    handler.end_headers()
    handler.wfile.write(b"half")
    handler.close_connection = True


def never_answers(handler):
    handler.server.stopped.wait(60)


def drips(handler):
    """One byte now and then: never silent, never done."""
    handler.send_response(200)
    handler.send_header("Content-Length", "1000")
    handler.end_headers()
    while not handler.server.stopped.wait(0.1):
        handler.wfile.write(b".")
        handler.wfile.flush()
        handler.server.poured += 1


def pours(header, start, more):
    """More than anyone wants to take in."""
    def behaviour(handler):
        handler.send_response(200)
        handler.send_header(*header)
        handler.end_headers()
        handler.wfile.write(start)
        while not handler.server.stopped.is_set():
            handler.wfile.write(more)
            handler.server.poured += len(more)
    return behaviour


pours_body = pours(("Content-Length", str(1 << 30)), b"", b"." * 65536)
pours_extension = pours(("Transfer-Encoding", "chunked"), b"1;", b"." * 65536)


class CountingServer(http.server.ThreadingHTTPServer):
    daemon_threads = True
    connections = poured = 0

    def verify_request(self, request, client_address):
        self.connections += 1
        return True

    def handle_error(self, request, client_address):
        pass  # clients that turn away are what is tested


class Server:
    """Runs while it is a context; `requests` holds (method, path, headers, body) of what arrived."""

    def __init__(self, chain, behaviour):
        self.server = CountingServer(("127.0.0.1", 0), Handler)
        self.server.requests = self.requests = []
        self.server.behaviour = behaviour
        self.server.stopped = threading.Event()
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(chain)
        self.server.socket = context.wrap_socket(self.server.socket, server_side=True, do_handshake_on_connect=False)
        self.port = self.server.server_address[1]
        self.host = f"127.0.0.1:{self.port}"

    def __enter__(self):
        threading.Thread(target=self.server.serve_forever, args=(0.02,), daemon=True).start()
        return self

    def __exit__(self, *arguments):
        self.server.stopped.set()
        self.server.shutdown()
        self.server.server_close()
