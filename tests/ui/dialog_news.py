"""News: a server on this machine tells of a newer version, or does whatever it can do."""
import socket
import threading
import time

from scenarios import equal, scenario
from screen import wait_for

CANCELLED = ["expect error -128", "expect untouched"]
ALL_PRESETS = 1127
NEWS = b"TarnwickStudio news\nversion 999.0\n"
SAME = b"TarnwickStudio news\nversion 0.0.1\n"
# What a check may take, and half a second for the dialog to ask.
PATIENCE = 5.5


def reply(body, status=b"200 OK", *fields):
    lines = [b"HTTP/1.0 " + status, b"Content-Type: text/plain", *fields, b"", body]
    return b"\r\n".join(lines)


class Server:
    """Answers each connection by answer(connection); what was asked is kept."""

    def __init__(self, answer):
        self._answer, self.asked = answer, []
        self._socket = socket.create_server(("127.0.0.1", 0))
        self.address = "http://127.0.0.1:%d/news.txt" % self._socket.getsockname()[1]
        self._ends = threading.Event()
        threading.Thread(target=self._serve, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._ends.set()
        self._socket.close()

    def _serve(self):
        while True:
            try:
                connection, _ = self._socket.accept()
            except OSError:
                return
            threading.Thread(target=self._talk, args=(connection,), daemon=True).start()

    def _talk(self, connection):
        with connection:
            try:
                connection.settimeout(20)
                request = b""
                while b"\r\n\r\n" not in request:
                    part = connection.recv(4096)
                    if not part:
                        break
                    request += part
                self.asked.append(request)
                self._answer(connection)
            except OSError:
                pass  # the other side has had enough

    def silence(self, connection):
        self._ends.wait(20)


def open_with(run, address):
    run.put("TarnwickStudio.ini", b"sweN " + address.encode() + b" \t;Address of news\n")
    # The smallest picture: what is waited for is the server.
    dialog = run.open(width=64, height=48, after=CANCELLED)
    dialog.screen.move(*dialog.window.place(60, 400))
    return dialog


def button_of(dialog):
    return dialog[ALL_PRESETS].picture().rgb()


def pictures_of_the_button(run):
    """Idle and under the pointer, without news."""
    run.put("TarnwickStudio.ini", b"nSsU 1\n")
    dialog = run.open(width=64, height=48, after=CANCELLED)
    dialog.screen.move(*dialog.window.place(60, 400))
    idle = button_of(dialog)
    dialog[ALL_PRESETS].move()
    wait_for(lambda: button_of(dialog) != idle, "the button does not follow the pointer")
    lit = button_of(dialog)
    dialog.cancel()
    return idle, lit


def ask_nobody_twice(server, want=1):
    wait_for(lambda: len(server.asked) == want, lambda: f"asked {len(server.asked)} times")
    for request in server.asked:
        assert request.startswith(b"GET /news.txt HTTP/1.0\r\nHost: 127.0.0.1:"), request
        # Nothing of the user or the machine.
        names = [line.split(b":")[0] for line in request.split(b"\r\n")[1:] if line]
        equal(names, [b"Host", b"User-Agent", b"Accept", b"Connection"])


@scenario()
def news_light_up_all_presets(run):
    idle, lit = pictures_of_the_button(run)
    with Server(lambda connection: connection.sendall(reply(NEWS))) as server:
        dialog = open_with(run, server.address)
        wait_for(lambda: button_of(dialog) not in (idle, lit), "no news are shown")
        time.sleep(0.5)
        bright = button_of(dialog)
        # It holds nothing: the pointer's next press belongs to what it lies on.
        equal(run.session.ask("focus")["capture"], 0)
        dialog.window.shot("news")
        dialog[ALL_PRESETS].move()
        dialog.screen.move(*dialog.window.place(60, 400))
        wait_for(lambda: button_of(dialog) not in (idle, lit, bright), "it stays bright")
        dialog.window.shot("news-idle")
        ask_nobody_twice(server)
        dialog.cancel()
        # The address stays in the file, for the next time.
        with open(run.file("TarnwickStudio.ini")) as file:
            lines = file.read().split("\n")
        equal(lines[7], f"sweN {server.address} \t\t\t\t;Address of news")


@scenario()
def nothing_new_changes_nothing(run):
    idle, lit = pictures_of_the_button(run)
    moved = reply(b"", b"302 Found", b"Location: http://127.0.0.1:1/")
    for answer in (reply(SAME), moved, bytes(range(256)) * 100, b""):
        with Server(lambda connection: connection.sendall(answer)) as server:
            dialog = open_with(run, server.address)
            ask_nobody_twice(server)
            time.sleep(0.6)
            equal(button_of(dialog) == idle, True)
            dialog.cancel()


@scenario()
def no_server_delays_the_dialog(run):
    """While it is asked the dialog works, and it closes; the module goes with it."""
    def drip(connection):
        for byte in reply(NEWS + b"x" * 4000):
            connection.sendall(bytes((byte,)))
            time.sleep(0.3)

    def flood(connection):
        head = reply(b"")
        for _ in range(100):
            connection.sendall(head + bytes(1 << 20))
            head = b""

    with socket.socket() as unused:
        unused.bind(("127.0.0.1", 0))  # and nobody listens
        dead = "http://127.0.0.1:%d/" % unused.getsockname()[1]
        for address in (dead, "http://no-such-host.invalid/"):
            close_soon(open_with(run, address))
    for answer in (drip, flood):
        with Server(answer) as server:
            close_soon(open_with(run, server.address))
    with Server(lambda connection: server.silence(connection)) as server:
        dialog = open_with(run, server.address)
        ask_nobody_twice(server)
        idle = button_of(dialog)
        # It gives up by itself.
        time.sleep(PATIENCE)
        equal(button_of(dialog) == idle, True)
        close_soon(dialog)


def close_soon(dialog):
    dialog.tab(1)
    dialog.tab(0)
    dialog[2].click()
    dialog.run.finish()
