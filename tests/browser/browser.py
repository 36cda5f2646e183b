"""A headless Chromium without any library: its DevTools messages through a pair of pipes."""

import base64
import fcntl
import json
import os
import subprocess


class Browser:
    def __init__(self, program, profile):
        # The browser reads messages from descriptor 3 and writes them to 4.
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        # Root may run it only without its sandbox; the page is our own.
        arguments = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     "--disable-background-networking", "--no-first-run", "--hide-scrollbars",
                     "--remote-debugging-pipe", f"--user-data-dir={profile}"]  # fmt: skip
        # Out of the way of 3 and 4, which the pipes themselves may be.
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for end in (to_browser, from_browser)]
        self._process = subprocess.Popen(
            ["bash", "-c", f'exec "$0" "$@" 3<&{ends[0]} 4>&{ends[1]}', program, *arguments],
            pass_fds=ends, stderr=subprocess.DEVNULL)  # fmt: skip
        for end in (to_browser, from_browser, *ends):
            os.close(end)
        self._unread = b""
        self._number = 0
        self._session = None
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        attached = self.call("Target.attachToTarget", targetId=target, flatten=True)
        self._session = attached["sessionId"]
        self.call("Page.enable")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        # In order, so that none of its processes still writes into the profile afterwards.
        self._session = None
        try:
            self.call("Browser.close")
            self._process.wait(timeout=20)
        except (OSError, RuntimeError, subprocess.TimeoutExpired):
            self._process.kill()
        self._process.wait()

    def _read(self):
        while b"\0" not in self._unread:
            piece = os.read(self._in, 1 << 16)
            if not piece:
                raise RuntimeError("the browser ended")
            self._unread += piece
        message, self._unread = self._unread.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self._number += 1
        message = {"id": self._number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._out, json.dumps(message).encode() + b"\0")
        while (answer := self._read()).get("id") != self._number:
            pass
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']['message']}")
        return answer["result"]

    def evaluate(self, expression):
        """The value of a JavaScript expression, awaited."""
        answer = self.call("Runtime.evaluate", expression=expression, awaitPromise=True,
                           returnByValue=True)  # fmt: skip
        if "exceptionDetails" in answer:
            raise RuntimeError(str(answer["exceptionDetails"]))
        return answer["result"].get("value")

    def open(self, address, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=False)  # fmt: skip
        self.call("Page.navigate", url=address)
        while self._read().get("method") != "Page.loadEventFired":
            pass
        self.evaluate("document.fonts.ready.then(() => true)")

    def reduce_motion(self, reduced):
        feature = {"name": "prefers-reduced-motion", "value": "reduce" if reduced else ""}
        self.call("Emulation.setEmulatedMedia", features=[feature])

    def mouse(self, kind, x, y):
        pressed = {} if kind == "mouseMoved" else {"button": "left", "clickCount": 1}
        self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, **pressed)

    def picture(self, file):
        size = self.call("Page.getLayoutMetrics")["cssContentSize"]
        shot = self.call("Page.captureScreenshot", captureBeyondViewport=True,
                         clip={**size, "scale": 1})  # fmt: skip
        with open(file, "wb") as output:
            output.write(base64.b64decode(shot["data"]))
