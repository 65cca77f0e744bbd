#!/usr/bin/env python3
"""Makes the compiled help from pages.toml, one file per language:  build.py

Needs chmcmd (Debian: fp-utils) or, on Windows, hhc. Run it after a change of the pages.
"""

import html
import pathlib
import shutil
import subprocess
import sys
import tempfile
import tomllib

HERE = pathlib.Path(__file__).parent
LANGUAGES = {"en": "0x409 English", "de": "0x407 German", "fr": "0x40c French"}

PROJECT = """[OPTIONS]
Compatibility=1.1 or later
Compiled file={file}
Contents file=contents.hhc
Default Window=main
Default topic=start.html
Full-text search=Yes
Language={language}
Title=Pipe Bench

[WINDOWS]
main="Pipe Bench","contents.hhc",,"start.html",,,,,,0x2520,220,0x3006,[80,60,880,560],,,,,,,0
page="Pipe Bench",,,"start.html",,,,,,0x2000,,0x0,[120,100,560,420],,,,,,,0

[FILES]
{files}

[MAP]
{map}

[ALIAS]
{alias}
"""


def page_html(title, paragraphs):
    body = "\n".join(f"<p>{html.escape(text, False)}</p>" for text in paragraphs)
    return f"""<html><head>
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<title>{html.escape(title, False)}</title></head>
<body style="font-family: Arial, sans-serif; font-size: 10pt">
<h1 style="font-size: 16pt; color: #10345c">{html.escape(title, False)}</h1>
{body}
</body></html>
"""


def contents(pages, language):
    entry = ('<LI><OBJECT type="text/sitemap"><param name="Name" value="{}">'
             '<param name="Local" value="{}.html"></OBJECT>')
    rows = "\n".join(entry.format(html.escape(page[language][0]), page["name"]) for page in pages)
    return f"<HTML><BODY><UL>\n{rows}\n</UL></BODY></HTML>\n"


# chmcmd writes the project's folder into the table of context numbers, where no folder belongs: for
# it the project stands in the root folder.
AT_ROOT = """for folder in etc lib lib64 usr; do
    [ -e /$folder ] || continue
    mkdir $folder
    mount --rbind /$folder $folder
done
chroot . /usr/bin/chmcmd /help.hhp"""


def compile_project(folder):
    if shutil.which("hhc"):
        subprocess.run(["hhc", "help.hhp"], cwd=folder)  # its status is 1 when all is well
    else:
        subprocess.run(["unshare", "--user", "--map-root-user", "--mount", "sh", "-ec", AT_ROOT],
                       cwd=folder, stdout=subprocess.DEVNULL, check=True)


def build(pages, language):
    name = f"{language}.chm"
    project = PROJECT.format(
        file=name, language=LANGUAGES[language],
        files="\n".join(f"{page['name']}.html" for page in pages),
        map="\n".join(f"#define IDH_{page['name'].upper()} {page['id']}" for page in pages),
        alias="\n".join(f"IDH_{page['name'].upper()}={page['name']}.html" for page in pages))
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        texts = {"help.hhp": project, "contents.hhc": contents(pages, language)}
        for page in pages:
            texts[page["name"] + ".html"] = page_html(page[language][0], page[language][1:])
        for file, text in texts.items():
            (folder / file).write_text(text, encoding="windows-1252")
        compile_project(folder)
        shutil.copy(folder / name, HERE / name)


def main():
    if not shutil.which("chmcmd") and not shutil.which("hhc"):
        sys.exit("No help compiler: install fp-utils (chmcmd), or on Windows hhc")
    pages = tomllib.loads((HERE / "pages.toml").read_text(encoding="utf-8"))["page"]
    for language in LANGUAGES:
        build(pages, language)


if __name__ == "__main__":
    main()
