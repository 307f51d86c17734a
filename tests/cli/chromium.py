"""A headless Chromium, driven through the pipe of its DevTools protocol.

Nothing but Python's own library. Messages are JSON, each ended by a zero byte;
the browser reads them from its file 3 and answers on its file 4.
"""
import base64
import json
import os
import select
import shutil
import signal
import subprocess
import tempfile
import time

NAMES = ("chromium", "chromium-browser", "google-chrome")


def find():
    """The program, or None."""
    return next((path for name in NAMES if (path := shutil.which(name))), None)


class Fault(Exception):
    """The page or the browser said no."""


class Chromium:
    """One page in a browser of its own, with a profile that goes with it."""

    def __init__(self, program, width=1280, height=900):
        self._profile = tempfile.mkdtemp(prefix="tarnwick-chromium-")
        to_browser, self._write = os.pipe()
        self._read, from_browser = os.pipe()
        command = [
            program, "--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run",
            "--disable-dev-shm-usage", "--disable-background-networking", "--disable-sync",
            "--disable-component-update", "--hide-scrollbars", "--remote-debugging-pipe",
            f"--user-data-dir={self._profile}", f"--window-size={width},{height}", "about:blank"]
        # The shell puts the pipes where the browser looks for them.
        script = f'exec "$@" 3<&{to_browser} 4>&{from_browser}'
        self._process = subprocess.Popen(
            ["bash", "-c", script, "chromium", *command], pass_fds=(to_browser, from_browser),
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)
        os.close(to_browser)
        os.close(from_browser)
        self._bytes = b""
        self._next = 0
        self._session = None
        self.errors = []  # what scripts threw, and what could not be loaded
        self.requests = []  # the addresses that the page asked for
        target = self._call("Target.createTarget", url="about:blank")["targetId"]
        attached = self._call("Target.attachToTarget", targetId=target, flatten=True)
        self._session = attached["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self._call(domain + ".enable")
        self.resize(width, height)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        # Its helpers are in the process group that was made for it.
        try:
            os.killpg(self._process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self._process.wait()
        os.close(self._write)
        os.close(self._read)
        shutil.rmtree(self._profile, ignore_errors=True)

    def _receive(self, timeout):
        deadline = time.monotonic() + timeout
        while b"\0" not in self._bytes:
            left = deadline - time.monotonic()
            if left <= 0 or not select.select([self._read], [], [], left)[0]:
                raise Fault("the browser does not answer")
            chunk = os.read(self._read, 1 << 20)
            if not chunk:
                raise Fault("the browser ended")
            self._bytes += chunk
        message, _, self._bytes = self._bytes.partition(b"\0")
        return json.loads(message)

    def _note(self, message):
        method, params = message.get("method"), message.get("params", {})
        if method == "Runtime.exceptionThrown":
            details = params["exceptionDetails"]
            self.errors.append(details.get("exception", {}).get("description") or details["text"])
        elif method == "Log.entryAdded" and params["entry"]["level"] == "error":
            self.errors.append(params["entry"]["text"] + " " + params["entry"].get("url", ""))
        elif method == "Network.requestWillBeSent":
            self.requests.append(params["request"]["url"])

    def _call(self, method, timeout=60, **params):
        self._next += 1
        call = {"id": self._next, "method": method, "params": params}
        if self._session:
            call["sessionId"] = self._session
        os.write(self._write, json.dumps(call).encode() + b"\0")
        while True:
            message = self._receive(timeout)
            if message.get("id") != self._next:
                self._note(message)
            elif "error" in message:
                raise Fault(f"{method}: {message['error']['message']}")
            else:
                return message["result"]

    def resize(self, width, height, phone=False, scale=1):
        self._call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                   deviceScaleFactor=scale, mobile=phone)
        self._call("Emulation.setTouchEmulationEnabled", enabled=phone)

    def prefer(self, **features):
        """prefer(prefers_color_scheme="dark")"""
        self._call("Emulation.setEmulatedMedia", features=[
            {"name": name.replace("_", "-"), "value": value} for name, value in features.items()])

    def disable_scripts(self, disabled=True):
        self._call("Emulation.setScriptExecutionDisabled", value=disabled)

    def open(self, address):
        # A page that differs in its "#" alone would not be loaded anew.
        self._call("Page.navigate", url="about:blank")
        self._call("Page.navigate", url=address)
        self.wait_for("document.readyState === 'complete' && location.href !== 'about:blank'")

    def _paint(self):
        """Waits for a frame. Until a page has painted its first one the browser drops what
        the pointer does; and a press goes to what was painted, not to what is laid out."""
        self._call("Page.captureScreenshot", format="png",
                   clip={"x": 0, "y": 0, "width": 1, "height": 1, "scale": 1})

    def run(self, script):
        """The value of a JavaScript expression, awaited."""
        result = self._call("Runtime.evaluate", expression=script, returnByValue=True,
                            awaitPromise=True, userGesture=True)
        if "exceptionDetails" in result:
            raise Fault(result["exceptionDetails"]["exception"].get("description", script))
        return result["result"].get("value")

    def _is(self, condition):
        try:
            return self.run(condition)
        except Fault as fault:
            # Asked while one page gives way to another: not yet.
            if "navigated" in str(fault) or "context" in str(fault):
                return False
            raise

    def wait_for(self, condition, seconds=20):
        deadline = time.monotonic() + seconds
        while not self._is(condition):
            if time.monotonic() > deadline:
                raise Fault(f"never came true: {condition}")
            time.sleep(0.02)

    def press(self, key, text=None, **modifiers):
        codes = {"ArrowLeft": 37, "ArrowRight": 39, "Escape": 27, "Tab": 9, "Enter": 13, "Home": 36,
                 "End": 35}
        bits = sum(bit for name, bit in (("alt", 1), ("ctrl", 2), ("shift", 8))
                   if modifiers.get(name))
        event = {"key": key, "code": key, "modifiers": bits,
                 "windowsVirtualKeyCode": codes.get(key, ord(key[0].upper()))}
        text = text if text is not None else {"Enter": "\r"}.get(key, key if len(key) == 1 else None)
        if text:
            event["text"] = text
        self._call("Input.dispatchKeyEvent", type="keyDown", **event)
        event.pop("text", None)
        self._call("Input.dispatchKeyEvent", type="keyUp", **event)

    def type(self, text):
        for letter in text:
            self.press(letter)

    def mouse(self, kind, x, y, button="left"):
        self._call("Input.dispatchMouseEvent", type="mouse" + kind, x=x, y=y, button=button,
                   buttons=0 if kind == "Released" else 1, clickCount=1)

    def click(self, selector):
        box = self._point(selector)
        self.mouse("Pressed", *box)
        self.mouse("Released", *box)

    def _point(self, selector, along=0.5):
        place = self.run(f"""(() => {{
            const element = document.querySelector({json.dumps(selector)});
            element.scrollIntoView({{block: "center", behavior: "instant"}});
            const box = element.getBoundingClientRect();
            return [box.left + {along} * box.width, box.top + box.height / 2]; }})()""")
        self._paint()
        return place

    def _finger(self, kind, *place):
        points = [{"x": place[0], "y": place[1]}] if place else []
        self._call("Input.dispatchTouchEvent", type="touch" + kind, touchPoints=points)

    def tap(self, selector):
        self._finger("Start", *self._point(selector))
        self._finger("End")

    def drag_finger(self, selector, begin, end):
        """From one place along the element's width to another."""
        self._finger("Start", *self._point(selector, begin))
        for part in (0.25, 0.5, 0.75, 1):
            self._finger("Move", *self._point(selector, begin + part * (end - begin)))
        self._finger("End")

    def allow(self, *permissions):
        session, self._session = self._session, None
        self._call("Browser.grantPermissions", permissions=list(permissions))
        self._session = session

    def unnamed_controls(self):
        """What a screen reader would call by nothing but its kind."""
        kinds = ("button", "link", "textbox", "searchbox", "combobox", "slider", "radio", "image",
                 "dialog", "form", "search")
        return [node["role"]["value"] for node in self._call("Accessibility.getFullAXTree")["nodes"]
                if not node["ignored"] and node["role"]["value"] in kinds
                and not node.get("name", {}).get("value")]

    def screenshot(self, path, whole=False):
        shot = self._call("Page.captureScreenshot", format="png", captureBeyondViewport=whole)
        with open(path, "wb") as file:
            file.write(base64.b64decode(shot["data"]))
