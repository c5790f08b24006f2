"""gallery_test.py QSYMBOL CATALOGUE: the gallery in headless Chromium, with its keys, its looks and nothing from outside.

Pictures are left in build/test-output."""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

QSYMBOL, CATALOGUE = None, None
OUTPUT = pathlib.Path("build/test-output")
FOLDERS = {"Küche": ["Küchenzeile", "Kühlschrank", "Herd", "Spüle"], "Möbel": ["Bett 90", "Sofa", "Stuhl"], "Bad/Gäste": ["WC"]}


def make_gallery(folder, copies=0):
    """The gallery of a catalogue in folders and in the folder itself, two texts with markup included."""
    catalogue, sources = folder / "Haus", sorted(CATALOGUE.rglob("*.syt"), key=lambda path: path.name)
    file = {source.stem: source for source in sources}
    for name, symbols in FOLDERS.items():
        (catalogue / name).mkdir(parents=True)
        for symbol in symbols:
            shutil.copy(file[symbol], catalogue / name)
    shutil.copy(file["Aufzug"], catalogue / "Aufzug <b>&'.syt")
    (catalogue / "leer.syt").write_text("SYM;CNT=1;WID=0;HEI=0;RPX=0;RPY=0\r\n"
                                        "POLY;CNT=1;COL=0;WID=0;CLS=FALSE;FIL=-1\r\nPOINT;0;0\r\n")
    for number in range(copies):
        target = catalogue / f"Sammlung {number % 25:02}"
        target.mkdir(exist_ok=True)
        shutil.copy(sources[number % len(sources)], target / f"Symbol {number:04}.syt")
    page = folder / "galerie.html"
    subprocess.run([QSYMBOL, "gallery", "-q", "-r", "--decimal", "comma", catalogue, page], check=True)
    return page


def browser(width=1280, height=860):
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--hide-scrollbars",
                     f"--window-size={width},{height}"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class Gallery(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.page = make_gallery(pathlib.Path(cls.temporary.name))
        cls.driver = browser()

    @classmethod
    def tearDownClass(cls):
        cls.driver.quit()
        cls.temporary.cleanup()

    def setUp(self):
        self.driver.get(self.page.as_uri())

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def shown(self):
        return [item.find_element(By.CSS_SELECTOR, ".name").text for item in self.all("main li") if item.is_displayed()]

    def press(self, *keys):
        for key in keys:
            self.driver.switch_to.active_element.send_keys(key)

    def focused(self):
        return self.driver.execute_script("return document.activeElement.querySelector('.name')?.textContent")

    def look(self, scheme="light", width=1280, height=860):
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                    {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                    {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": False})

    def metrics(self):
        return {each["name"]: each["value"] for each in self.driver.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]}

    def save(self, name):
        OUTPUT.mkdir(parents=True, exist_ok=True)
        self.driver.save_screenshot(str(OUTPUT / f"gallery-{name}.png"))

    def test_symbols_stand_in_the_order_of_their_folders(self):
        self.assertEqual(self.shown(), ["Aufzug <b>&'", "leer", "WC", "Herd", "Küchenzeile", "Kühlschrank", "Spüle",
                                        "Bett 90", "Sofa", "Stuhl"])
        self.assertEqual([chip.text for chip in self.all("nav button")],
                         ["Alle 10", "Haus 2", "Bad/Gäste 1", "Küche 4", "Möbel 3"])
        self.assertEqual(self.one("#result").text, "10 Symbole")
        self.assertIn("3000 × 600 mm", [size.text for size in self.all(".size")])
        self.save("light")

    def test_search_folds_accents_and_takes_several_words(self):
        for typed, found in {"kuche": ["Herd", "Küchenzeile", "Kühlschrank", "Spüle"], "KUECHEN": ["Küchenzeile"],
                             "küche spü": ["Spüle"], "kuche  sofa": [], "<b>": ["Aufzug <b>&'"],
                             "ga ste": ["WC"]}.items():
            self.one("#query").clear()
            self.one("#query").send_keys(typed)
            self.assertEqual(self.shown(), found, typed)
            self.assertEqual(self.one("#result").text, f"{len(found)} von 10 Symbolen")
            self.assertEqual(self.one("#nothing").is_displayed(), not found)
        self.press(Keys.ESCAPE)
        time.sleep(0.1)
        self.assertEqual(len(self.shown()), 10)

    def test_categories_and_sizes_filter(self):
        chip = self.all("nav button")[4]
        chip.click()
        self.assertEqual(self.shown(), ["Bett 90", "Sofa", "Stuhl"])
        self.assertEqual([each.get_attribute("aria-pressed") for each in self.all("nav button")],
                         ["false"] * 4 + ["true"])
        self.one("#least").send_keys("1000")
        self.assertEqual(self.shown(), ["Bett 90", "Sofa"])
        self.one("#most").send_keys("2000")
        self.assertEqual(self.shown(), ["Bett 90"])
        self.one("#reset").click()
        time.sleep(0.1)
        self.assertEqual(len(self.shown()), 10)

    def test_keys_lead_everywhere(self):
        self.press("/")
        self.assertEqual(self.driver.switch_to.active_element.get_attribute("id"), "query")
        self.press(Keys.ARROW_DOWN)
        self.assertEqual(self.focused(), "Aufzug <b>&'")
        self.press(Keys.ARROW_RIGHT, Keys.ARROW_DOWN)
        self.assertEqual(self.focused(), "WC")
        self.press(Keys.ARROW_DOWN, Keys.ARROW_RIGHT)
        self.assertEqual(self.focused(), "Küchenzeile")
        self.press(Keys.END)
        self.assertEqual(self.focused(), "Stuhl")
        self.press(Keys.HOME)
        self.assertEqual(self.focused(), "Aufzug <b>&'")
        # The cards are one stop of the tabulator.
        self.assertEqual(len(self.all("main li button[tabindex='0']")), 1)
        self.press(Keys.SHIFT + Keys.TAB)
        self.assertIsNone(self.focused())
        self.press(Keys.TAB)
        self.assertEqual(self.focused(), "Aufzug <b>&'")
        self.press(Keys.ENTER)
        self.assertTrue(self.one("#view").is_displayed())
        self.press(Keys.ARROW_LEFT)
        self.assertEqual(self.one("#view-name").text, "Stuhl")
        self.press(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT, Keys.ESCAPE)
        self.assertFalse(self.one("#view").is_displayed())
        self.assertEqual(self.focused(), "leer")

    def test_the_large_view_tells_measures_and_elements(self):
        self.one("#query").send_keys("Küchenzeile", Keys.ENTER)
        facts = self.one("#view-facts").text.replace("\u00a0", " ")
        for fact in ("Küche", "3000 × 600 mm", "1500 | 0 mm", "Elemente (66)", "Küchenzeile.syt"):
            self.assertIn(fact, facts)
        self.assertEqual([text.text.replace("\u00a0", " ") for text in self.all("#view .measure-text")], ["3000 mm", "600 mm"])
        self.save("view")
        self.one("#close").click()
        self.assertEqual(self.focused(), "Küchenzeile")

    def test_looks_right_dark_narrow_and_printed(self):
        self.look("dark")
        self.save("dark")
        self.look("light", 390, 800)
        self.assertLessEqual(self.driver.execute_script("return document.documentElement.scrollWidth"), 390)
        self.assertEqual(len({item.rect["x"] for item in self.all("main li")}), 2)
        self.save("narrow")
        self.look()
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": "print"})
        self.assertFalse(self.one("#query").is_displayed())
        self.assertEqual(len(self.shown()), 10)
        self.save("print")
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": ""})

    def test_nothing_leaves_the_page_and_nothing_fails(self):
        self.driver.get_log("performance")
        self.driver.get_log("browser")
        self.driver.get(self.page.as_uri())
        self.one("#query").send_keys("küche", Keys.ENTER)
        self.press(Keys.ARROW_RIGHT, Keys.ESCAPE)
        events = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        requested = {event["params"]["request"]["url"] for event in events
                     if event["method"] == "Network.requestWillBeSent"}
        self.assertEqual({url for url in requested if not url.startswith("data:")}, {self.page.as_uri()})
        self.assertEqual(self.driver.get_log("browser"), [])

    def test_what_can_be_used_has_a_name_and_a_role(self):
        tree = self.driver.execute_cdp_cmd("Accessibility.getFullAXTree", {})["nodes"]
        nodes = [(node.get("role", {}).get("value"), node.get("name", {}).get("value", "")) for node in tree
                 if not node.get("ignored")]
        usable = [node for node in nodes if node[0] in ("button", "searchbox", "spinbutton", "link", "textbox")]
        self.assertGreater(len(usable), 15)
        self.assertEqual([node for node in usable if not node[1].strip()], [])
        self.assertTrue({"main", "banner", "search", "navigation", "contentinfo", "status"} <= {role for role, _ in nodes})
        headings = [name for role, name in nodes if role == "heading"]
        self.assertEqual(headings[:2], ["Haus", "Haus 2"])
        ids = [element.get_attribute("id") for element in self.all("[id]")]
        self.assertEqual(len(ids), len(set(ids)))

    def test_texts_stand_out_from_their_ground(self):
        for scheme in ("light", "dark"):
            self.look(scheme)
            self.driver.get(self.page.as_uri())
            self.one("#query").send_keys("kuche")
            self.all("nav button")[3].click()
            poor = self.driver.execute_script(CONTRAST)
            self.assertEqual(poor, [], scheme)
            self.one("#query").send_keys(Keys.ENTER)
            self.assertEqual(self.driver.execute_script(CONTRAST), [], scheme)

    def test_two_thousand_symbols_open_quickly(self):
        with tempfile.TemporaryDirectory() as folder:
            page = make_gallery(pathlib.Path(folder), 2000)
            # Processor time of the page's own thread, so that it does not matter what else the machine does.
            self.driver.execute_cdp_cmd("Performance.enable", {"timeDomain": "threadTicks"})
            self.driver.get("about:blank")
            begin = self.metrics()
            self.driver.get(page.as_uri())
            taken = self.driver.execute_script("return performance.getEntriesByType('navigation')[0].loadEventEnd")
            self.assertEqual(len(self.all("main li")), 2010)
            # What lies far outside of the window is not drawn.
            skipped = self.driver.execute_script(SKIPPED)
            opened = self.metrics()
            self.driver.set_script_timeout(300)
            height = self.driver.execute_script("return document.documentElement.scrollHeight")
            self.assertAlmostEqual(self.driver.execute_async_script(SCROLL, STEPS), height, delta=10, msg="nothing jumps")
            scrolled = self.metrics()
        spent = lambda name, start, end: 1000 * (end[name] - start[name])
        step = {name: spent(f"{name}Duration", opened, scrolled) / STEPS for name in ("Task", "Layout", "RecalcStyle", "Script")}
        print(f"2,010 symbols: open after {taken:.0f} ms, {spent('TaskDuration', begin, opened):.0f} ms of processor time, {skipped} not drawn "
              f"yet; a step of 500 px: {step['Task']:.1f} ms of processor time (layout {step['Layout']:.1f}, styles {step['RecalcStyle']:.1f}, "
              f"script {step['Script']:.1f})")
        self.assertGreater(skipped, 1600)
        # Only what comes into sight is laid out, once.
        self.assertLessEqual(scrolled["LayoutCount"] - opened["LayoutCount"], 2 * STEPS)


# Texts whose contrast to the ground below them is under 4.5, as the guidelines for accessibility count it.
CONTRAST = """
const channels = (text) => text.match(/[\\d.]+/g).map(Number);
const light = (c) => { const [r, g, b] = c.slice(0, 3).map((v) => (v /= 255) <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4);
  return 0.2126 * r + 0.7152 * g + 0.0722 * b; };
const ground = (e) => { for (; e; e = e.parentElement) { const c = channels(getComputedStyle(e).backgroundColor);
  if (c.length < 4 || c[3] > 0.99) return c; } return [255, 255, 255]; };
const poor = [];
const top = document.querySelector("dialog[open]") ?? document.body;
for (const e of top.querySelectorAll(":not(script, style, svg *)")) {
  if (![...e.childNodes].some((n) => n.nodeType === 3 && n.data.trim()) || !e.checkVisibility() || e.closest(".hidden, .skip")) continue;
  const a = light(channels(getComputedStyle(e).color)), b = light(ground(e));
  const ratio = (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05);
  if (ratio < 4.5) poor.push(`${e.tagName} ${e.textContent.trim().slice(0, 20)} ${ratio.toFixed(2)}`);
}
return poor;
"""

SKIPPED = """
return [...document.querySelectorAll("main li")].filter((li) =>
  !li.firstElementChild.checkVisibility({ contentVisibilityAuto: true })).length;
"""

# Through the page, most of a screen a frame; how high it is then.
SCROLL = """
const [steps, done] = arguments;
let taken = 0;
const step = () => {
  if (taken++ === steps) return done(document.documentElement.scrollHeight);
  scrollBy({ top: 500, behavior: "instant" });
  requestAnimationFrame(step);
};
requestAnimationFrame(step);
"""
STEPS = 60


def main():
    global QSYMBOL, CATALOGUE
    QSYMBOL, CATALOGUE = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    suite = unittest.defaultTestLoader.loadTestsFromTestCase(Gallery)
    result = unittest.TextTestRunner(stream=sys.stdout, verbosity=2).run(suite)
    bad = len(result.failures) + len(result.errors)
    print(f"{max(0, result.testsRun - bad)} passed, {bad} failed, 0 skipped")
    return 1 if bad or result.testsRun == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
