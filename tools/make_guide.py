#!/usr/bin/env python3
"""Converts the guide to an HTML page for any browser.

    make_guide.py GUIDE.md FOLDER    writes FOLDER/Guide.html and copies the guide's pictures to FOLDER/docs

It supports the Markdown that the guide uses: headings, paragraphs, lists, tables, quotes, indented code and pictures on
a line of their own; bold text, code and links to headings within a line. Anything else is an error with its line
number, so that no mark appears as text. It needs only Python's standard library.
"""
import html
import os
import re
import shutil
import struct
import sys

STYLE = """
body { font: 16px/1.55 "Segoe UI", Tahoma, Verdana, sans-serif; color: #1c1a2b; background: #fff;
  max-width: 46em; margin: 0 auto; padding: 1em 1.2em 4em }
h1, h2, h3 { line-height: 1.25; color: #1f0880 }
h2 { margin: 2em 0 .6em; padding-bottom: .2em; border-bottom: 1px solid #c9c6e0 }
a { color: #3b1fc0 }
li { margin: .35em 0 }
img { display: block; max-width: 100%; height: auto; border: 1px solid #c9c6e0 }
code, pre { font: 14px/1.5 Consolas, "Courier New", monospace; background: #f0eff8 }
code { padding: .1em .3em; overflow-wrap: anywhere }
pre { padding: .7em 1em; overflow: auto }
blockquote { margin: 1.2em 0; padding: .5em 1em; background: #fff4d6; border-left: 5px solid #e0a100 }
blockquote p { margin: .3em 0 }
.table { overflow-x: auto }
table { border-collapse: collapse; width: 100% }
th, td { text-align: left; vertical-align: top; padding: .45em .7em; border: 1px solid #c9c6e0 }
th { background: #f0eff8 }
.contents { columns: 14em; padding-left: 1.2em }
.contents li { margin: 0; padding: .15em 0 }
@media (prefers-color-scheme: dark) {
  body { color: #e6e4f2; background: #17161f }
  h1, h2, h3 { color: #c0c0ff }
  h2, img, th, td { border-color: #45425e }
  a { color: #a9a4ff }
  code, pre, th { background: #262433 }
  blockquote { background: #3a3013; border-color: #e0a100 }
}
"""

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>{title}</title>
<style>{style}</style>
</head>
<body>
{body}
</body>
</html>
"""

INLINE = re.compile(r'`([^`]+)`|\*\*([^*`\[]+)\*\*|\[([^\]*`]+)\]\(#([a-z0-9-]+)\)')
# Marks of other Markdown readers that are not part of the constructs above.
STRAY = re.compile(r'[*_`\[\]<~]|\\[^A-Za-z0-9\s]|&\w+;|https?:')
UNKNOWN_BLOCK = re.compile(r'#{4,}|#+[^# ]|```|~~~|[-*_]{3,}$|[=-]+$|[*+] |\d+\) | {1,3}\S|\t|<|\[[^\]]*\]:')
PICTURE = re.compile(r'!\[([^\]]+)\]\(([a-z0-9-]+\.png)\)')


class Guide:
    """One conversion. `at` is the index of the next line."""

    def __init__(self, path):
        self.path, self.at, self.out = path, 0, []
        self.headings, self.links, self.pictures = [], [], []
        with open(path, encoding='utf-8') as file:
            self.lines = file.read().split('\n')

    def fail(self, what, at=None):
        sys.exit(f'{self.path}:{(self.at if at is None else at) + 1}: {what}')

    def line(self):
        return self.lines[self.at] if self.at < len(self.lines) else ''

    def take(self, mark):
        """Returns the next lines that begin with `mark`, without the mark."""
        found = []
        while self.line().startswith(mark):
            found.append(self.line()[len(mark):].lstrip(' ') if mark == '>' else self.line()[len(mark):])
            self.at += 1
        return found

    def inline(self, text, at):
        out, end = [], 0
        for match in INLINE.finditer(text):
            out.append(self.plain(text[end:match.start()], at))
            code, bold, label, target = match.groups()
            if code:
                out.append(f'<code>{html.escape(code)}</code>')
            elif bold:
                out.append(f'<strong>{self.plain(bold, at)}</strong>')
            else:
                self.links.append((target, at))
                out.append(f'<a href="#{target}">{self.plain(label, at)}</a>')
            end = match.end()
        return ''.join(out) + self.plain(text[end:], at)

    def plain(self, text, at):
        if match := STRAY.search(text):
            self.fail(f'cannot convert "{match.group()}" in: {text}', at)
        return html.escape(text, quote=False)

    def heading(self):
        level, text = re.fullmatch(r'(#{1,3}) (.+)', self.line()).groups()
        name = re.sub(r'[^a-z0-9 -]', '', text.lower()).replace(' ', '-')
        if any(name == other for _, other, _ in self.headings):
            self.fail(f'a second heading "{text}"')
        self.headings.append((len(level), name, self.plain(text, self.at)))
        self.out.append(f'<h{len(level)} id="{name}">{self.plain(text, self.at)}</h{len(level)}>')
        self.at += 1

    def picture(self, match):
        alternative, name = match.groups()
        with open(os.path.join(os.path.dirname(self.path), name), 'rb') as file:
            width, height = struct.unpack('>II', file.read(24)[16:])
        self.pictures.append(name)
        self.out.append(f'<p><img src="docs/{name}" alt="{html.escape(alternative)}" width="{width}" '
                        f'height="{height}"></p>')
        self.at += 1
        if self.line():
            self.fail('text beside a picture')

    def list(self, kind, mark):
        """Converts a list. Further lines of an item must be indented as far as its text."""
        self.out.append(f'<{kind}>')
        while match := re.match(mark, self.line()):
            start, text = self.at, [self.line()[match.end():]]
            self.at += 1
            while self.line().startswith(' '):
                further = self.line().lstrip(' ')
                if re.match(r'- |\d+\. |> |\|', further) or len(self.line()) - len(further) != match.end():
                    self.fail('a list or an indentation within a list item')
                text.append(further)
                self.at += 1
            self.out.append(f'<li>{self.inline(" ".join(text), start)}</li>')
        self.out.append(f'</{kind}>')
        if self.line():
            self.fail('text right after a list')

    def table(self):
        rows = []
        while self.line().startswith('|'):
            if not self.line().endswith('|'):
                self.fail('a row of a table that does not end with "|"')
            rows.append((self.at, [cell.strip() for cell in self.line()[1:-1].split('|')]))
            self.at += 1
        columns = len(rows[0][1])
        for at, row in rows:
            if len(row) != columns:
                self.fail(f'{len(row)} cells in a table of {columns} columns', at)
        if len(rows) < 3 or any(cell != '---' for cell in rows[1][1]):
            self.fail('a table without a line of "---" below its head', rows[0][0])
        self.out.append('<div class="table"><table>')
        for index, (at, row) in enumerate(rows):
            if index != 1:
                tag = 'td' if index else 'th'
                self.out.append('<tr>' + ''.join(f'<{tag}>{self.inline(cell, at)}</{tag}>' for cell in row) + '</tr>')
        self.out.append('</table></div>')

    def block(self):
        line, start = self.line(), self.at
        if re.match(r'#{1,3} \S', line):
            self.heading()
        elif match := PICTURE.fullmatch(line):
            self.picture(match)
        elif line.startswith('- '):
            self.list('ul', '- ')
        elif line.startswith('1. '):
            self.list('ol', r'\d+\. ')
        elif line.startswith('|'):
            self.table()
        elif line.startswith('>'):
            self.out.append(f'<blockquote><p>{self.inline(" ".join(self.take(">")), start)}</p></blockquote>')
        elif line.startswith('    '):
            self.out.append(f'<pre>{html.escape(chr(10).join(self.take("    ")))}</pre>')
        else:
            self.paragraph()

    def paragraph(self):
        start, text = self.at, []
        while self.line():
            if UNKNOWN_BLOCK.match(self.line()) or (text and re.match(r'#|- |\d+\. |>|\||!\[', self.line())):
                self.fail(f'cannot convert: {self.line()}')
            text.append(self.line())
            self.at += 1
        self.out.append(f'<p>{self.inline(" ".join(text), start)}</p>')

    def convert(self):
        while self.at < len(self.lines):
            if self.line():
                self.block()
            else:
                self.at += 1
        for target, at in self.links:
            if all(target != name for _, name, _ in self.headings):
                self.fail(f'no heading for the link "#{target}"', at)
        levels = [level for level, _, _ in self.headings]
        if levels[:1] != [1] or levels.count(1) != 1 or levels.count(2) < 2:
            self.fail('a guide needs one title and two chapters', 0)
        # The contents follow the first chapter, which is all that a new user needs.
        chapters = [i for i, line in enumerate(self.out) if line.startswith('<h2')]
        contents = [f'<li><a href="#{name}">{text}</a></li>' for level, name, text in self.headings if level == 2]
        self.out[chapters[1]:chapters[1]] = ['<ul class="contents">', *contents[1:], '</ul>']
        return PAGE.format(title=self.headings[0][2], style=STYLE, body='\n'.join(self.out))


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__)
    path, folder = arguments
    guide = Guide(path)
    page = guide.convert()
    os.makedirs(os.path.join(folder, 'docs'), exist_ok=True)
    for name in guide.pictures:
        shutil.copy(os.path.join(os.path.dirname(path), name), os.path.join(folder, 'docs'))
    with open(os.path.join(folder, 'Guide.html'), 'w', encoding='utf-8', newline='\n') as file:
        file.write(page)


if __name__ == '__main__':
    main(sys.argv[1:])
