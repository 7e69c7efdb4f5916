"""What the site does differently from the pages in the tree and from the theme, and the check that it lacks nothing."""
import pathlib
import posixpath
import re

from mkdocs.exceptions import PluginError

LINK = re.compile(r"(?<!!)\[([^\]]*)\]\(([^)#\s]+)(#[^)\s]*)?\)")
SCRIPT = re.compile(r'<script src="([^"]*?)js/([^"/]+\.js)"[^>]*></script>')
IMAGE = re.compile(r"!\[[^\]]*\]\(([^)#\s]+)")
TARGET = re.compile(r'(?:href|src)="([^"#?:]+)["#?]')


def pages_in(nav):
    """The paths of all pages below a piece of nav."""
    if isinstance(nav, str):
        return {nav}
    parts = nav.values() if isinstance(nav, dict) else nav
    return set().union(*(pages_in(part) for part in parts))


def on_files(files, config):
    """Where some folders alone are taken whole, other pages are those of nav, and other files what these show."""
    folders = config["extra"].get("whole_folders")
    if folders is None:
        return files
    wanted = pages_in(config["nav"])
    own = [file for file in files if pathlib.Path(file.abs_src_path).is_relative_to(config["docs_dir"])]
    pages = [
        file
        for file in own
        if file.is_documentation_page()
        and (file.src_uri in wanted or posixpath.dirname(file.src_uri) in folders)
    ]
    kept = {page.src_uri for page in pages}
    for page in pages:
        for image in IMAGE.findall(pathlib.Path(page.abs_src_path).read_text(encoding="utf-8")):
            kept.add(posixpath.normpath(posixpath.join(posixpath.dirname(page.src_uri), image)))
    for file in own:
        if file.src_uri not in kept:
            files.remove(file)
    return files


def on_page_markdown(markdown, page, config, files):
    """Links to files of the tree that are no pages become their text."""
    here = posixpath.dirname(page.file.src_uri)
    if page.is_homepage and "index" in config["extra"]:
        markdown = pathlib.Path(config["extra"]["index"]).read_text(encoding="utf-8")

    def kept(match):
        target = match.group(2)
        if "://" in target:
            return match.group(0)
        path = posixpath.normpath(posixpath.join(here, target))
        return match.group(0) if files.get_file_from_path(path) else match.group(1)

    return LINK.sub(kept, markdown)


def with_scripts_of_the_theme(output, config):
    """The package of the distribution has scripts by other names than its pages ask for, or not at all."""
    there = {path.name for folder in config["theme"].dirs for path in pathlib.Path(folder).glob("js/*.js")}

    def named(match):
        folder, name = match.groups()
        if name in there:
            return match.group(0)
        same = sorted(other for other in there if name.startswith("jquery-") and other.startswith("jquery-"))
        return f'<script src="{folder}js/{same[0]}"></script>' if same else ""

    return SCRIPT.sub(named, output)


def on_post_page(output, page, config):
    return with_scripts_of_the_theme(output, config)


def on_post_template(output_content, template_name, config):
    return with_scripts_of_the_theme(output_content, config)


def on_post_build(config):
    """Every file that a page names is in the site."""
    site = pathlib.Path(config["site_dir"])
    for page in sorted(site.rglob("*.html")):
        for target in TARGET.findall(page.read_text(encoding="utf-8")):
            path = site / target[1:] if target.startswith("/") else page.parent / target
            if not path.exists():
                raise PluginError(f"{page.relative_to(site)} names {target}, which is not there")
