"""What the site does differently from the pages in the tree and from the theme, and the check that it lacks nothing."""
import pathlib
import posixpath
import re

from mkdocs.exceptions import PluginError

LINK = re.compile(r"(?<!!)\[([^\]]*)\]\(([^)#\s]+)(#[^)\s]*)?\)")
SCRIPT = re.compile(r'<script src="([^"]*?)js/([^"/]+\.js)"[^>]*></script>')
TARGET = re.compile(r'(?:href|src)="([^"#?:]+)["#?]')


def on_page_markdown(markdown, page, config, files):
    """Links to files of the tree that are no pages become their text."""
    here = posixpath.dirname(page.file.src_uri)

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
