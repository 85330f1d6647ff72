"""A page in Chromium without a window, watched through its own debugging protocol over a pipe."""

import json
import os
import select
import shutil
import subprocess
import tempfile
import time


class Browser:
    """Opens pages and remembers what they ask for and what they complain of."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="zelmat-browser-")
        to_browser, self.writer = os.pipe()
        self.reader, from_browser = os.pipe()
        arguments = ["chromium", "--headless", "--disable-gpu", "--no-first-run", "--disable-background-networking",
                     "--remote-debugging-pipe", f"--user-data-dir={self.folder}"]
        if os.geteuid() == 0:
            arguments.append("--no-sandbox")

        def pipes():
            # The protocol's pipes are the descriptors 3 and 4, copied from above so that neither is in the way.
            high_in, high_out = os.dup(to_browser), os.dup(from_browser)
            while high_in < 5 or high_out < 5:
                high_in, high_out = os.dup(high_in), os.dup(high_out)
            os.dup2(high_in, 3)
            os.dup2(high_out, 4)

        self.process = subprocess.Popen(arguments, preexec_fn=pipes, close_fds=False, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(to_browser)
        os.close(from_browser)
        self.pending, self.number, self.events = b"", 0, []
        target = self.call("Target.createTarget", {"url": "about:blank"})["targetId"]
        self.session = self.call("Target.attachToTarget", {"targetId": target, "flatten": True})["sessionId"]
        for domain in ("Page", "Network", "Log", "Runtime"):
            self.call(f"{domain}.enable")

    def close(self):
        try:
            self.call("Browser.close")
        except (OSError, TimeoutError):
            pass
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def message(self, deadline):
        while b"\0" not in self.pending:
            ready, _, _ = select.select([self.reader], [], [], max(0.0, deadline - time.monotonic()))
            data = os.read(self.reader, 1 << 20) if ready else b""
            if not data:
                raise TimeoutError("chromium does not answer")
            self.pending += data
        text, self.pending = self.pending.split(b"\0", 1)
        return json.loads(text)

    def call(self, method, parameters=None, seconds=120.0):
        self.number += 1
        request = {"id": self.number, "method": method, "params": parameters or {}}
        if hasattr(self, "session") and not method.startswith(("Target.", "Browser.")):
            request["sessionId"] = self.session
        data = json.dumps(request).encode() + b"\0"
        while data:
            data = data[os.write(self.writer, data):]
        deadline = time.monotonic() + seconds
        while True:
            answer = self.message(deadline)
            if answer.get("id") == self.number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']}")
                return answer["result"]
            self.events.append(answer)

    def open(self, url):
        """Loads a page; what happened while it loaded is in `events`."""
        self.events = []
        self.call("Page.navigate", {"url": url})
        deadline = time.monotonic() + 120.0
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self.message(deadline))

    def evaluate(self, expression):
        answer = self.call("Runtime.evaluate", {"expression": expression, "returnByValue": True})
        if "exceptionDetails" in answer:
            raise RuntimeError(answer["exceptionDetails"])
        return answer["result"].get("value")

    def requests(self):
        return [event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"]

    def complaints(self):
        """Whatever reached the console, and exceptions."""
        kinds = ("Log.entryAdded", "Runtime.consoleAPICalled", "Runtime.exceptionThrown")
        return [event["params"] for event in self.events if event.get("method") in kinds]
