#!/usr/bin/python3
"""Makes of the pages in help/ what the help compiler takes, and the same pages for a web site.

    tools/make_help.py sources FOLDER
    tools/make_help.py site FOLDER

Each folder of help/ with a project (*.hhp) is the help in one language. Its pages are whole web pages in
UTF-8 and can be read as they are, contents.html first. They share what is in help/shared; their pictures are
made by docs/screenshots/make.py --for-help.

"sources" makes FOLDER/LANGUAGE: all that belongs to the help file flat beside one another, in the code
page of the language, as the viewer knows no other in contents, index and search. Contents (.hhc) come from
contents.html, the index (.hhk) from the "data-index" attributes of the pages, whose words stand between
semicolons.

"site" makes FOLDER/CODE for each language, with its contents on each page.
"""

import html
import html.parser
import pathlib
import re
import shutil
import sys
import unicodedata

PROJECT = pathlib.Path(__file__).resolve().parents[1]
HELP = PROJECT / "help"
CONTENTS = "contents.html"
# Of the languages that help is written in, by their ids in the project.
CODE_PAGES = {0x407: "cp1252", 0x409: "cp1252"}
NAMES = {"de": "Deutsch", "en": "English"}
# A window with contents, index and search, which remembers its place.
WINDOW = '{name}="{title}","{stem}.hhc","{stem}.hhk","index.html","index.html",,,,,0x62520,250,0x384e,,,,,,,,0'


class Page(html.parser.HTMLParser):
    """What a page says of itself, and what it refers to."""

    def __init__(self, name, source):
        super().__init__()
        self.name = name
        self.source = source
        self.title = ""
        self.language = ""
        self.words = []   # (word of the index, id of what it leads to or "")
        self.links = []
        self.files = []   # pictures, styles
        self.ids = []
        self.marked = []  # (id of a text of the program, how the page gives it)
        self._open = []   # (tag, whether it is marked)
        self.feed(self.source)

    def handle_starttag(self, tag, attrs):
        found = dict(attrs)
        if tag == "html":
            self.language = found["lang"]
        if "id" in found:
            self.ids.append(found["id"])
        for word in found.get("data-index", "").split(";"):
            if word.strip():
                self.words.append((word.strip(), found.get("id", "")))
        if tag == "a" and "href" in found:
            self.links.append(found["href"])
        if tag == "img":
            self.files.append(found["src"])
        if tag == "link":
            self.files.append(found["href"])
        if "data-id" in found:
            self.marked.append((int(found["data-id"]), ""))
        if tag not in ("meta", "link", "img", "br"):
            self._open.append((tag, "data-id" in found))

    def handle_endtag(self, tag):
        opened, _ = self._open.pop()
        if opened != tag:
            raise ValueError(f"{self.name}: </{tag}> closes <{opened}>")

    def handle_data(self, data):
        if self._open and self._open[-1][0] == "title":
            self.title += data
        if any(marked for _, marked in self._open):
            number, text = self.marked[-1]
            self.marked[-1] = (number, text + " ".join(data.split("\n")))


class Contents(html.parser.HTMLParser):
    """The entries of contents.html: (depth, title, page), without a page where there is none."""

    def __init__(self, file):
        super().__init__()
        self.entries = []
        self._depth = 0
        self._in_entry = False
        self.feed(file.read_text("utf-8"))

    def handle_starttag(self, tag, attrs):
        if tag == "ul":
            self._depth += 1
            self._in_entry = False
        elif tag == "li":
            self.entries.append([self._depth, "", ""])
            self._in_entry = True
        elif tag == "a" and self._in_entry:
            self.entries[-1][2] = dict(attrs)["href"]

    def handle_endtag(self, tag):
        if tag == "ul":
            self._depth -= 1
        elif tag == "li":
            self._in_entry = False

    def handle_data(self, data):
        if self._in_entry:
            self.entries[-1][1] = (self.entries[-1][1] + data).strip()


class Help:
    """The help in one language."""

    def __init__(self, folder):
        self.folder = folder
        self.name = folder.name
        self.pages = [Page(file.name, file.read_text("utf-8")) for file in sorted(folder.glob("*.html"))
                      if file.name != CONTENTS]
        self.contents = Contents(folder / CONTENTS).entries
        self.project, = folder.glob("*.hhp")
        self.code = self.pages[0].language

    def options(self):
        lines = self.project.read_text("utf-8").splitlines()
        return dict(line.split("=", 1) for line in lines if "=" in line)

    def code_page(self):
        return CODE_PAGES[int(self.options()["Language"].split()[0], 16)]

    def shared_files(self):
        """Styles and pictures, which the pages name by their way from their folder."""
        return sorted({(self.folder / file).resolve() for page in self.pages for file in page.files})

    def flat(self, page):
        """The page with what it refers to beside it."""
        return re.sub(r'(?<=(?:src|ref)=")\.\./[^"]*/', "", page.source)

    def words(self):
        found = [(word, page.name + (f"#{anchor}" if anchor else ""))
                 for page in self.pages for word, anchor in page.words]
        # As in a dictionary: letters with marks beside those without.
        return sorted(found, key=lambda entry: (unicodedata.normalize("NFKD", entry[0].casefold())
                                                .encode("ascii", "ignore"), entry))


def languages():
    return [Help(project.parent) for project in sorted(HELP.glob("*/*.hhp"))]


def site_map(entries):
    """Lists as the help compiler knows them, of (depth, name, page)."""
    lines = ['<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">', "<HTML><HEAD></HEAD><BODY>"]
    depth = 0
    for level, name, page in entries:
        lines += ["<UL>"] * (level - depth) + ["</UL>"] * (depth - level)
        depth = level
        local = f'<param name="Local" value="{page}">' if page else ""
        lines.append(f'<LI><OBJECT type="text/sitemap"><param name="Name" value="{html.escape(name)}">{local}</OBJECT>')
    return "\n".join([*lines, *["</UL>"] * depth, "</BODY></HTML>", ""])


def make_sources(help_, folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    encoding = help_.code_page()
    # In the form that the viewer has known from the first.
    said = f'http-equiv="Content-Type" content="text/html; charset={encoding.replace("cp", "windows-")}"'
    for page in help_.pages:
        text = help_.flat(page).replace('charset="utf-8"', said)
        (folder / page.name).write_bytes(text.encode(encoding, "xmlcharrefreplace"))
    for file in help_.shared_files():
        shutil.copyfile(file, folder / file.name)
    stem = help_.project.stem
    (folder / f"{stem}.hhc").write_bytes(site_map(help_.contents).encode(encoding))
    (folder / f"{stem}.hhk").write_bytes(site_map([(1, *entry) for entry in help_.words()]).encode(encoding))
    files = sorted(file.name for file in folder.iterdir() if file.suffix not in (".hhc", ".hhk"))
    window = WINDOW.format(name="main", title=help_.options()["Title"], stem=stem)
    (folder / help_.project.name).write_text(
        "\n".join([help_.project.read_text("utf-8").rstrip("\n"), f"Contents file={stem}.hhc", f"Index file={stem}.hhk",
                   "Default window=main", "", "[WINDOWS]", window, "", "[FILES]", *files, ""]), "utf-8")


def navigation(help_, page, others):
    """Links to the page in the other languages, and the contents."""
    links = "".join(f'<p><a href="../{other.code}/{page.name}" hreflang="{other.code}">{NAMES[other.code]}</a></p>\n'
                    for other in others)
    contents = re.search("<ul>.*</ul>", (help_.folder / CONTENTS).read_text("utf-8"), re.S)[0]
    here = contents.replace(f'<a href="{page.name}">', f'<a class="here" href="{page.name}">')
    return f'<nav class="site">\n{links}{here}\n</nav>'


def make_site(all_, folder):
    shutil.rmtree(folder, ignore_errors=True)
    for help_ in all_:
        target = folder / help_.code
        target.mkdir(parents=True)
        for file in [*help_.shared_files(), HELP / "shared" / "site.css"]:
            shutil.copyfile(file, target / file.name)
        for page in help_.pages:
            bar = navigation(help_, page, [other for other in all_ if other is not help_])
            text = help_.flat(page).replace("</head>", '<link rel="stylesheet" href="site.css">\n</head>')
            (target / page.name).write_text(text.replace("<body>", f"<body>\n{bar}\n<main>", 1)
                                            .replace("</body>", "</main>\n</body>"), "utf-8")
    first = all_[0]
    links = "".join(f'<li><a href="{each.code}/index.html" hreflang="{each.code}">{NAMES[each.code]}</a></li>\n'
                    for each in all_)
    (folder / "index.html").write_text(
        f'<!DOCTYPE html>\n<html lang="{first.code}"><head><meta charset="utf-8"><title>Ordalyn</title>\n'
        f'<link rel="stylesheet" href="{first.code}/style.css"></head>\n<body><h1>Ordalyn</h1>\n'
        f"<ul>\n{links}</ul>\n</body></html>\n", "utf-8")


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("sources", "site"):
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[2])
    if sys.argv[1] == "site":
        make_site(languages(), folder)
        return
    for help_ in languages():
        make_sources(help_, folder / help_.name)


if __name__ == "__main__":
    main()
