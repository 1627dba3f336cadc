#!/usr/bin/python3
"""An FTP server on a port that it inherits as file 3.

    ftp_server.py FOLDER

operator (secret) may do everything, guest (guest) only read. What is stored as "full" finds no
room. Transfers in the folder "/one-part" start at the begin only.
"""
import socket
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer


class Handler(FTPHandler):
    use_gmt_times = True

    def ftp_STOR(self, file, mode="w"):
        if file.endswith("/full"):
            self.respond("552 Exceeded storage allocation.")
            return None
        return super().ftp_STOR(file, mode)

    def ftp_REST(self, line):
        if self.fs.cwd == "/one-part":
            self.respond("502 Command not implemented.")
            return None
        return super().ftp_REST(line)


def main():
    authorizer = DummyAuthorizer()
    authorizer.add_user("operator", "secret", sys.argv[1], perm="elradfmwMT")
    authorizer.add_user("guest", "guest", sys.argv[1], perm="elr")
    Handler.authorizer = authorizer
    Handler.auth_failed_timeout = 0
    FTPServer(socket.socket(fileno=3), Handler).serve_forever()


main()
