"""gallery_test.py ZYNDLE CHROMIUM [PICTURE-FOLDER]: the gallery as a browser shows it."""

import json
import os
import subprocess
import sys
import tempfile
import unittest

from browser import Browser

ZYNDLE, CHROMIUM = sys.argv[1:3]
PICTURES = sys.argv[3] if len(sys.argv) > 3 else None

FAMILIES = {
    "chord": ["small", "medium", "large", "extraLarge", "accessoryCircular",
              "accessoryRectangular", "accessoryInline"],
    "launcher": ["extraLargePortrait"],
    "recent": ["extraLargePortrait"],
    "collections": ["extraLargePortrait"],
}  # fmt: skip

LONG = "Wonderfully wide songs from the summer of 2025 and beyond"
# Lists of commands: nothing set, and everything, with what is long, wide and of another script.
SETTINGS = {
    "empty": [],
    "full": [
        ["settings", "set", "left_handed", "true"],
        ["settings", "set", "todayChordCategory", "jazz"],
        *(["recent", "add", name] for name in ["Cmaj7", "F#m7b5", "Bb7#9", "Ebm(maj11)", "C/E"]),
        *(["collections", "add", title, "C"] for title in [LONG, "R&B <3", "WWWWWWWWWWWWWWW"]),
    ],
}

FONTS = "[...document.fonts].map(font => font.status)"

# Texts that reach over the edge of the smallest card around them or of the picture.
OVERFLOWING = """[...document.querySelectorAll('svg')].flatMap(svg => {
  const whole = svg.viewBox.baseVal;
  const frames = [...svg.querySelectorAll('a rect')].map(rect => rect.getBBox()).concat(whole);
  return [...svg.querySelectorAll('text')].filter(text => {
    const box = text.getBBox();
    const x = box.x + box.width / 2, y = box.y + box.height / 2;
    const around = frames.filter(frame => x > frame.x && x < frame.x + frame.width &&
                                          y > frame.y && y < frame.y + frame.height);
    const card = around.sort((a, b) => a.width * a.height - b.width * b.height)[0];
    return !card || box.x < card.x || box.x + box.width > card.x + card.width;
  }).map(text => text.textContent);
})"""


class Gallery(unittest.TestCase):
    def setUp(self):
        # A browser that had to be killed may leave a process behind that writes a moment longer.
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = self.enterContext(folder)
        self.browser = self.enterContext(Browser(CHROMIUM, self.folder + "/profile"))

    def zyndle(self, *arguments):
        environment = {"XDG_DATA_HOME": self.folder, "TZ": "UTC"}
        return subprocess.run([ZYNDLE, *arguments], env=environment, check=True,
                              capture_output=True, text=True).stdout  # fmt: skip

    def links_of(self, items):
        for item in items:
            if "link" in item:
                yield item["link"]

    def open_gallery(self, name, width=1360, file="index.html"):
        self.zyndle("gallery", f"{self.folder}/{name}")
        self.browser.open(f"file://{self.folder}/{name}/{file}", width, 900)
        if PICTURES:
            self.browser.picture(f"{PICTURES}/gallery-{name}-{width}.png")

    def test_shows_every_widget_whole(self):
        for name, commands in SETTINGS.items():
            for command in commands:
                self.zyndle(*command)
            for width in (1360, 400):
                with self.subTest(settings=name, width=width):
                    self.open_gallery(name, width)
                    self.assertEqual(self.browser.evaluate(FONTS), ["loaded"] * 3)
                    self.assertEqual(self.browser.evaluate(OVERFLOWING), [])
                    self.assertLessEqual(
                        self.browser.evaluate("document.documentElement.scrollWidth"), width)
            for widget, families in FAMILIES.items():
                for family in families:
                    drawn = self.zyndle("widget", widget, "--family", family, "--format", "json")
                    addresses = self.browser.evaluate(
                        f"[...document.querySelectorAll('.{widget}.{family} a')]"
                        ".map(link => link.getAttribute('href'))")  # fmt: skip
                    self.assertEqual(addresses, list(self.links_of(json.loads(drawn)["items"])))

    def test_tells_where_a_tap_leads(self):
        self.open_gallery("tap")
        address = "zyndle://widget/metronome"
        x, y = self.centre_of(f'a[href="{address}"]')
        for kind in ("mousePressed", "mouseReleased"):
            self.browser.mouse(kind, x, y)
        notice = self.browser.evaluate("document.getElementById('link').textContent")
        self.assertIn(address, notice)

    def centre_of(self, selector):
        """Scrolled into view, in the window's pixels."""
        return self.browser.evaluate(
            f"(() => {{ const node = document.querySelector('{selector}');"
            "node.scrollIntoView({block: 'center'});"
            "const box = node.getBoundingClientRect();"
            "return [box.x + box.width / 2, box.y + box.height / 2]; })()")  # fmt: skip

    def test_plucks_a_string(self):
        # window.reached: how far from its place the string has been seen, in points.
        watch = """(() => {
          const path = document.querySelector('SELECTOR');
          const numbers = () => path.getAttribute('d').match(/-?[\\d.]+/g).map(Number);
          const [rest] = numbers();
          window.path = path;
          window.reached = 0;
          new MutationObserver(() => {
            window.reached = Math.max(window.reached, Math.abs(numbers()[2] - rest));
          }).observe(path, {attributes: true});
        })()"""
        page = ("index.html", ".chord.medium .string-4 path")
        picture = ("chord-medium.svg", ".string-4 path")
        for (file, selector), is_reduced in ((page, False), (page, True), (picture, False)):
            with self.subTest(file=file, is_reduced=is_reduced):
                self.browser.reduce_motion(is_reduced)
                self.open_gallery("pluck", file=file)
                self.browser.evaluate(watch.replace("SELECTOR", selector))
                rest = self.browser.evaluate("path.getAttribute('d')")
                x, y = self.centre_of(selector)
                for step in (-3, 3):
                    self.browser.mouse("mouseMoved", x + step, y)
                self.assertNotEqual(self.browser.evaluate("path.style.stroke"), "")
                self.browser.evaluate(
                    "new Promise(done => { const look = () =>"
                    "path.style.stroke === '' ? done() : setTimeout(look, 50); look(); })")
                # Four units of the diagram, which is drawn 1.2 times as large.
                reached = 0 if is_reduced else 4.8
                self.assertAlmostEqual(self.browser.evaluate("reached"), reached)
                self.assertEqual(self.browser.evaluate("path.getAttribute('d')"), rest)


if __name__ == "__main__":
    os.environ.setdefault("HOME", tempfile.gettempdir())
    unittest.main(argv=sys.argv[:1])
