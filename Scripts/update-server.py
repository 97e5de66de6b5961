#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The server of Scripts/check-update.sh: https on the port that is named, a proxy on the next, http on the one after.

It serves /tmp/site, where a file "moved" says where the feed went, and writes every request into /tmp/requests.
"""
import http.server
import os
import select
import socket
import ssl
import sys
import threading

SITE = "/tmp/site"


class Handler(http.server.SimpleHTTPRequestHandler):
    def __init__(self, *arguments):
        super().__init__(*arguments, directory=SITE)

    def log_request(self, *_):
        with open("/tmp/requests", "a", encoding="utf-8") as requests:
            print(self.requestline, file=requests)

    def do_GET(self):
        moved = os.path.join(SITE, "moved")
        if self.path == "/feed.xml" and os.path.exists(moved):
            with open(moved, encoding="utf-8") as address:
                self.send_response(302)
                self.send_header("Location", address.read().strip())
                self.send_header("Content-Length", "0")
                self.end_headers()
        else:
            super().do_GET()

    def do_CONNECT(self):
        host, port = self.path.split(":")
        with socket.create_connection((host, int(port))) as target:
            self.send_response(200)
            self.end_headers()
            ends = {self.connection: target, target: self.connection}
            while True:
                for end in select.select(list(ends), [], [])[0]:
                    data = end.recv(65536)
                    if not data:
                        self.close_connection = True
                        return
                    ends[end].sendall(data)


def serve(port, encrypted=False):
    server = http.server.ThreadingHTTPServer(("127.0.0.1", port), Handler)
    if encrypted:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain("server.crt", "server.key")
        server.socket = context.wrap_socket(server.socket, server_side=True)
    threading.Thread(target=server.serve_forever).start()


first = int(sys.argv[1])
serve(first, encrypted=True)
serve(first + 1)
serve(first + 2)
