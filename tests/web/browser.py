"""A real browser with the page of the game in it, and hands that act on its elements alone."""
import contextlib
import functools
import http.server
import pathlib
import tempfile
import threading

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

FLAGS = ("--headless=new --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking "
         "--disable-component-update --disable-sync --disable-dev-shm-usage --hide-scrollbars=false --mute-audio")

SET_TEXT = """const [id, text] = arguments, element = document.getElementById(id);
element.value = text;
element.dispatchEvent(new Event('input', { bubbles: true }));"""
SET_ROW = """const [id, text] = arguments, element = document.getElementById(id);
element.selectedIndex = [...element.options].findIndex((option) => option.text === text || option.textContent === text);
if (element.selectedIndex < 0) throw new Error(`no row ${text} in ${id}`);
element.dispatchEvent(new Event('change', { bubbles: true }));"""
CLICK = """const element = document.getElementById(arguments[0]);
if (element.disabled || element.getClientRects().length === 0) throw new Error(`${arguments[0]} cannot be clicked`);
element.click();"""

# Everything that can be seen of the forms in sight, and the place of the keyboard, in the lines that the game without a face answers.
SEE = r"""
const colours = { 'rgb(255, 0, 0)': 'red', 'rgb(0, 128, 0)': 'green', 'rgb(128, 0, 128)': 'purple', 'rgb(0, 0, 0)': 'black' };
const nameOf = (image) => decodeURIComponent(image.getAttribute('src') || '');
const textOf = (element) => {
  const legend = element.tagName === 'FIELDSET' && element.querySelector(':scope > legend');
  if (element.tagName === 'FIELDSET') return legend ? legend.textContent : '';
  if (element.tagName === 'IMG') return nameOf(element);
  if (element.tagName === 'SELECT') return '';
  if (element.matches('input, textarea')) return element.value;
  const image = element.querySelector('img');
  return image ? nameOf(image) : element.textContent;
};
// A picture in a frame of its own, and what is named where it stands, are told by their own attributes.
const spokenOf = (element) => (element.tagName === 'IMG' ? element.alt : element.id.endsWith('.Plik') || element.tagName === 'FIELDSET' ? '' :
  element.getAttribute('aria-label') || '');
const lineOf = (element) => {
  const isLabel = element.matches('[role=checkbox], span, output, p, h1, h2, h3, h4, label');
  const isSelect = element.tagName === 'SELECT';
  const disabled = element.disabled || element.getAttribute('aria-disabled') === 'true';
  const bit = (value) => (value ? '1' : '0');
  const parts = [element.id, textOf(element),
    (isLabel && colours[getComputedStyle(element).color]) || 'plain', bit(!element.hidden), bit(!disabled),
    isSelect ? [...element.options].map((option) => option.textContent + '\u0002').join('') : '',
    isSelect ? element.selectedIndex : -1, element.title, bit(element.readOnly),
    bit(element.matches('input[type=text], textarea') && element.tabIndex < 0), bit(element.checked || element.getAttribute('aria-checked') === 'true'),
    spokenOf(element), element.dataset.key || ''];
  return parts.join('\u0001').replaceAll('\n', '\\n');
};
const see = () => {
  const box = document.querySelector('#error');
  if (box.open) return ['error ' + document.querySelector('#error-text').textContent.replaceAll('\n', '\\n')];
  if (!document.querySelector('#anew').hidden) return ['ended'];
  const forms = [...document.querySelectorAll('dialog[data-form]')].filter((form) => !form.hidden);
  const titles = forms.map((form) => form.id + '\u0001' + form.querySelector('[data-title]').textContent);
  const lines = forms.flatMap((form) => [...form.querySelectorAll('[id*="."]')].map(lineOf));
  return [...titles, ...lines, 'hand ' + document.activeElement.id];
};
"""


class Quiet(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass

    def copyfile(self, source, outputfile):
        # A browser may have enough of a sound or a picture before its end.
        with contextlib.suppress(ConnectionError):
            super().copyfile(source, outputfile)


@contextlib.contextmanager
def serving(folder, port=0):
    """A stock server of files on the loopback address; gives the address of the folder."""
    server = http.server.ThreadingHTTPServer(("127.0.0.1", port), functools.partial(Quiet, directory=str(folder)))
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        yield f"http://127.0.0.1:{server.server_address[1]}/"
    finally:
        server.shutdown()
        server.server_close()


@contextlib.contextmanager
def browsing(*flags):
    """A browser with a profile of its own, gone with it."""
    with tempfile.TemporaryDirectory() as profile:
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for flag in (*FLAGS.split(), f"--user-data-dir={profile}", *flags):
            options.add_argument(flag)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "OFF"})
        driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        driver.set_script_timeout(240)
        try:
            yield driver
        finally:
            driver.quit()


class Page:
    """The game in a tab of a browser."""

    def __init__(self, driver, address):
        self.driver = driver
        self.address = address

    def open(self, seconds=None):
        """Loads the page and waits for the game; the clock stands at so many seconds."""
        self.driver.get(self.address)
        self.wait("document.querySelector('#Main') && !document.querySelector('#Main').hidden")
        if seconds is not None:
            self.seed(seconds)

    def script(self, code, *values):
        return self.driver.execute_script(code, *values)

    def wait(self, condition):
        code = f"""const done = arguments[0];
const look = () => {{ {{ if ({condition}) done(true); else setTimeout(look, 10); }} }};
look();"""
        self.driver.execute_async_script(code)

    def size(self, width, height, touch=False):
        """A screen of so many pixels, touched or not."""
        command = self.driver.execute_cdp_cmd
        command("Emulation.setDeviceMetricsOverride",
                {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": touch})
        command("Emulation.setTouchEmulationEnabled", {"enabled": touch})

    def still(self):
        """Lets nothing on the page move by itself."""
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-reduced-motion", "value": "reduce"}]})

    def seed(self, seconds):
        self.script("brolgan.seed(arguments[0])", seconds)

    def click(self, form, control):
        self.script(CLICK, f"{form}.{control}")

    def select(self, form, control, row):
        self.script(SET_ROW, f"{form}.{control}", row)

    def type(self, form, control, text):
        self.script(SET_TEXT, f"{form}.{control}", text)

    def close(self, form):
        self.script("document.getElementById(arguments[0]).querySelector('[data-close]').click()", form)

    def perform(self, act):
        """One line of a written game: click, select, type or close."""
        words, _, text = act.partition(" = ")
        verb, form, *control = words.split()
        {"click": self.click, "select": self.select, "type": self.type, "close": self.close}[verb](
            form, *control, *([text] if text else []))

    def shown(self):
        """The names of the forms that are seen."""
        return self.script("return [...document.querySelectorAll('dialog[data-form]')]"
                           ".filter((form) => !form.hidden).map((form) => form.id)")

    def screen(self):
        """The screen that stands on the title, empty when there is none."""
        return next((name for name in self.shown() if name not in ("Brolgan", "FHero")), "")

    def has_ended(self):
        return self.script("return !document.querySelector('#anew').hidden")

    def error(self):
        """The text of the message box, None when there is none."""
        return self.script("const box = document.querySelector('#error');"
                           "return box.open ? document.querySelector('#error-text').textContent : null")

    def see(self):
        """The set of all that can be seen, in the lines of the game without a face."""
        return set(self.script(SEE + "return see();"))

    def files(self):
        """All files of the game, as bytes by name."""
        texts = self.script("return Object.fromEntries(brolgan.files.list().map((name) => [name, brolgan.files.read(name)]))")
        return {name: text.encode("latin-1") for name, text in texts.items()}

    def write(self, name, content):
        self.script("brolgan.files.write(arguments[0], arguments[1])", name, content.decode("latin-1"))

    def memory(self):
        """Bytes in use by the page's script, bytes of the program's whole memory, nodes of the page."""
        for _ in range(2):
            self.driver.execute_cdp_cmd("HeapProfiler.collectGarbage", {})
        used = self.driver.execute_cdp_cmd("Runtime.getHeapUsage", {})["usedSize"]
        return used, self.script("return HEAPU8.length"), self.driver.execute_cdp_cmd("Memory.getDOMCounters", {})["nodes"]

    def faults(self):
        """What the browser has complained of since it was asked last."""
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] in ("SEVERE", "WARNING")]


def acts(path):
    """The acts of a written game, one a line."""
    lines = pathlib.Path(path).read_text("utf-8").splitlines()
    return [line for line in lines if line and not line.startswith("#")]
