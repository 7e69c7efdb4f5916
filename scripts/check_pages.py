"""Reads pages as somebody who opens them from a disk: every link leads to a place that is there, nothing is fetched from
elsewhere, every page is reached from index.html, and none of those named is missing.

    check_pages.py FOLDER PAGE...    paths of pages without ".html"
"""
import html.parser
import pathlib
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    """What a page leads to, what it fetches, and the places in it."""

    def __init__(self, path):
        super().__init__()
        self.links, self.fetched, self.places = [], [], set()
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.places.add(values["id"])
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        elif tag == "link":
            self.fetched.append(values["href"])
        elif "src" in values:
            self.fetched.append(values["src"])


def faults_of(folder, named):
    pages = {path: Page(path) for path in sorted(folder.rglob("*.html"))}
    faults = [f"there is no {name}.html" for name in named if folder / f"{name}.html" not in pages]
    leads_to = {}
    for path, page in pages.items():
        told = path.relative_to(folder)
        faults += [f"{told} fetches {link}" for link in page.fetched if urllib.parse.urlsplit(link).scheme]
        leads_to[path] = set()
        for link in page.links + page.fetched:
            parts = urllib.parse.urlsplit(link)
            if parts.scheme or parts.netloc:
                continue
            target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            if not target.is_file():
                faults.append(f"{told} leads to {link}, which is not there")
            elif parts.fragment and target in pages and parts.fragment not in pages[target].places:
                faults.append(f"{told} leads to {link}, a place that is not there")
            leads_to[path].add(target)
    reached, waiting = set(), [folder / "index.html"]
    while waiting:
        path = waiting.pop()
        if path in pages and path not in reached:
            reached.add(path)
            waiting += leads_to[path]
    return faults + [f"nothing leads to {path.relative_to(folder)}" for path in pages if path not in reached]


def main():
    faults = faults_of(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:])
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
