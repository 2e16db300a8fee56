# A real SMTP server on loopback for the e-mail tests (aiosmtpd). Each message received is
# written as N.eml into the folder given, with its envelope in N.env. Options: --tls for
# implicit TLS with a self-signed certificate made now, --user/--password to require that
# login. The first line printed is "port N" once the server accepts connections.
import argparse
import asyncio
import os
import socket
import ssl
import subprocess
import sys
import time

from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult


class Store:
    def __init__(self, folder):
        self.folder = folder
        self.count = 0

    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        base = os.path.join(self.folder, str(self.count))
        with open(base + ".env", "w") as env:
            env.write(envelope.mail_from + "\n" + "\n".join(envelope.rcpt_tos) + "\n")
        with open(base + ".eml", "wb") as eml:
            eml.write(envelope.original_content)
        return "250 OK"


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--tls", action="store_true")
    parser.add_argument("--user")
    parser.add_argument("--password")
    args = parser.parse_args()

    context = None
    if args.tls:
        cert = os.path.join(args.folder, "server.crt")
        key = os.path.join(args.folder, "server.key")
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                        "-nodes", "-keyout", key, "-out", cert, "-days", "1", "-subj", "/CN=localhost"],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        context.load_cert_chain(cert, key)

    def authenticator(server, session, envelope, mechanism, auth_data):
        ok = (auth_data.login.decode() == args.user and auth_data.password.decode() == args.password)
        return AuthResult(success=ok, handled=False)

    kwargs = {}
    if args.user:
        kwargs = dict(authenticator=authenticator, auth_require_tls=False, auth_required=True)
    port = free_port()
    controller = Controller(Store(args.folder), hostname="127.0.0.1", port=port, ssl_context=context,
                            server_hostname="localhost", **kwargs)
    controller.start()
    print("port %d" % port, flush=True)
    try:
        while True:
            time.sleep(3600)
    finally:
        controller.stop()


if __name__ == "__main__":
    main()
