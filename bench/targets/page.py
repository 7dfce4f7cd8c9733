#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A page full of buttons in Firefox, for bench/Snapping.cpp: as gtk.py."""

import http.server
import json
import os
import subprocess
import sys
import tempfile

width, height, size, pitch = map(int, sys.argv[1:])

PAGE = f"""<!DOCTYPE html><title>Targets</title>
<style>body {{ margin: 0; overflow: hidden }}
button {{ position: absolute; width: {size}px; height: {size}px; padding: 0; border: 1px solid }}</style>
<script>
onload = () => {{
  for (let top = {pitch // 2}; top < {height - pitch}; top += {pitch})
    for (let left = {pitch // 2}; left < {width - pitch}; left += {pitch}) {{
      const button = document.body.appendChild(document.createElement("button"));
      button.style.left = left + "px";
      button.style.top = top + "px";
    }}
  setTimeout(() => fetch("/", {{method: "POST", body: JSON.stringify(
    Array.from(document.querySelectorAll("button"), (each) => each.getBoundingClientRect()).map(
      (box) => [Math.round(mozInnerScreenX + box.left), Math.round(mozInnerScreenY + box.top)]))}}),
    3000);
}};
</script>"""
QUIET = ('user_pref("datareporting.policy.dataSubmissionEnabled", false);'
         'user_pref("browser.aboutwelcome.enabled", false);'
         'user_pref("browser.shell.checkDefaultBrowser", false);')


class Handler(http.server.BaseHTTPRequestHandler):
    def answer(self, text: str = "") -> None:
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(text.encode())

    def do_GET(self) -> None:  # noqa: N802
        self.answer(PAGE if self.path == "/" else "")

    def do_POST(self) -> None:  # noqa: N802
        for left, top in json.loads(self.rfile.read(int(self.headers["Content-Length"]))):
            print("box", left, top)
        print("ready", flush=True)
        self.answer()

    def log_message(self, *_) -> None:
        pass


with (tempfile.TemporaryDirectory() as profile,
      http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler) as server):
    with open(profile + "/user.js", "w") as preferences:
        preferences.write(QUIET)
    browser = subprocess.Popen(
        ("setpriv", "--pdeathsig", "KILL", "firefox-esr", "--profile", profile, "--width", str(width), "--height",
         str(height + 100), f"http://127.0.0.1:{server.server_port}/"),
        env=os.environ | {"GNOME_ACCESSIBILITY": "1"}, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    server.serve_forever()
