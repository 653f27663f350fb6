#!/usr/bin/env python3
"""Makes one page of all screens: assemble.py OUT SIZES puts index.html into the folder OUT.

In a screen an id is the name of a control. each="0..3" repeats an element, # being the number and #+1 the next;
picture="x.png" shows a picture of the game in the size that its place needs; SIZES tells how large each is."""
import base64
import hashlib
import html
import html.parser
import json
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).parent
# The title lies behind; the sheet comes last, over the others.
SCREENS = ["Brolgan", "Main", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"]
# Those that are seen at the start; the pictures of the others can wait.
FIRST = {"Brolgan", "Main"}
VOID = {"img", "input", "source", "br"}


class Tree(html.parser.HTMLParser):
    """Elements as [tag, attributes, children]; texts as strings."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.open = [["", {}, []]]
        self.feed(text)
        if len(self.open) != 1:
            raise ValueError(f"<{self.open[-1][0]}> is not closed")
        self.roots = self.open[0][2]

    def handle_starttag(self, tag, attrs):
        element = [tag, dict(attrs), []]
        self.open[-1][2].append(element)
        if tag not in VOID:
            self.open.append(element)

    def handle_endtag(self, tag):
        if self.open[-1][0] != tag:
            raise ValueError(f"</{tag}> closes <{self.open[-1][0]}> in line {self.getpos()[0]}")
        self.open.pop()

    def handle_data(self, data):
        if data.strip():
            self.open[-1][2].append(data.strip())


def numbered(node, number):
    fill = lambda text: text.replace("#+1", str(int(number) + 1)).replace("#", number)
    if isinstance(node, str):
        return fill(node)
    tag, attrs, children = node
    named = {name: value and fill(value) for name, value in attrs.items()}
    return [tag, named, [numbered(child, number) for child in children]]


def repeated(node):
    """The element as often as its each says, its children likewise."""
    if isinstance(node, str):
        return [node]
    tag, attrs, children = node
    if "each" not in attrs:
        return [[tag, attrs, [one for child in children for one in repeated(child)]]]
    first, last = map(int, attrs["each"].split(".."))
    plain = [tag, {name: value for name, value in attrs.items() if name != "each"}, children]
    return [one for number in range(first, last + 1) for one in repeated(numbered(plain, str(number)))]


def picture(attrs, sizes):
    """A picture that the browser takes in the size and the format that suit it."""
    attrs = dict(attrs)
    name = attrs.pop("picture", None)
    source, image = {"type": "image/webp", "sizes": attrs.get("sizes", "100vw")}, {"alt": "", "decoding": "async", **attrs}
    if name:
        stem, ending = name.rsplit(".", 1)
        width, height = sizes[name]
        both = lambda end: f"{stem}-s.{end} {round(width / 2)}w, {stem}.{end} {width}w"
        source["srcset"] = both("webp")
        image |= {"srcset": both(ending), "src": name, "width": str(width), "height": str(height)}
    return ["picture", {}, [["source", source, []], ["img", image, []]]]


def control(node, form, sizes):
    """Ids with the name of their form, pictures with their sizes."""
    if isinstance(node, str):
        return node
    tag, attrs, children = node
    named = {name: f"{form}.{value}" if name in ("id", "for") and value not in (form, "anew") else value
             for name, value in attrs.items()}
    if tag == "img":
        return picture(named if form in FIRST else {"loading": "lazy", **named}, sizes)
    return [tag, named, [control(child, form, sizes) for child in children]]


def text_of(node):
    if isinstance(node, str):
        return html.escape(node, quote=False)
    tag, attrs, children = node
    words = "".join(f" {name}" if value is None else f' {name}="{html.escape(value)}"' for name, value in attrs.items())
    inner = "".join(map(text_of, children))
    return f"<{tag}{words}>" if tag in VOID else f"<{tag}{words}>{inner}</{tag}>\n"


def heads(sizes):
    """The rows of what is beaten, each with the head of its monster."""
    names = sorted(name for name in sizes if name.startswith("glowa-"))
    return "".join(f'#FHero [data-picture="{name[6:]}"] {{ background-image: url({name[:-4]}.webp); }}\n' for name in names)


def tight(sheet):
    """A style without what is for its readers alone."""
    words = re.sub(r"\s+", " ", re.sub(r"/\*.*?\*/", "", sheet, flags=re.DOTALL))
    return re.sub(r" ?([{};,]) ?", r"\1", words).replace(";}", "}")


def screen(name, sizes):
    roots = [one for root in Tree((HERE / "screens" / f"{name}.html").read_text("utf-8")).roots for one in repeated(root)]
    return "".join(text_of(control(root, name, sizes)) for root in roots)


def style(sizes):
    sheets = [HERE / "page.css", HERE / "departments.css", *(HERE / "screens" / f"{name}.css" for name in SCREENS)]
    return tight("".join(sheet.read_text("utf-8") for sheet in sheets) + heads(sizes))


def page(sizes):
    """The style stands in the page, lest the page be laid out without it; the policy knows it by its digest."""
    look = style(sizes)
    digest = base64.b64encode(hashlib.sha256(look.encode()).digest()).decode()
    parts = {"@STYLE@": look, "@DIGEST@": digest, "<!-- screens -->": "".join(screen(name, sizes) for name in SCREENS)}
    text = (HERE / "page.html").read_text("utf-8")
    for mark, part in parts.items():
        text = text.replace(mark, part)
    return text


def main():
    out, sizes = pathlib.Path(sys.argv[1]), json.loads(pathlib.Path(sys.argv[2]).read_text("utf-8"))
    (out / "index.html").write_text(page(sizes), "utf-8")


if __name__ == "__main__":
    main()
