"""What the site does differently from the pages in the tree: it has no files beside its own to lead to."""
import posixpath
import re

LINK = re.compile(r"(?<!!)\[([^\]]*)\]\(([^)#\s]+)(#[^)\s]*)?\)")


def on_page_markdown(markdown, page, config, files):
    """Links to files of the tree that are no pages become their text; a folder of examples is no page either."""
    here = posixpath.dirname(page.file.src_uri)

    def kept(match):
        target = match.group(2)
        if "://" in target:
            return match.group(0)
        path = posixpath.normpath(posixpath.join(here, target))
        return match.group(0) if files.get_file_from_path(path) else match.group(1)

    return LINK.sub(kept, markdown)
