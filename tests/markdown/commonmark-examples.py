#!/usr/bin/env python3
"""Turns the CommonMark specification's single-line examples of inline syntax into a table of texts and styled runs.

    npm pack commonmark-spec@0.30.0 && tar xzf commonmark-spec-0.30.0.tgz
    tests/markdown/commonmark-examples.py package/spec.txt > tests/markdown/commonmark-examples.tsv

What is expected comes from the HTML beside each example, with our differences: raw HTML is text, an image is its description,
white space at both ends stays. Left out and counted: examples of several lines (among them all that define a link
target) and those whose text starts a block.
"""

import collections
import html
import re
import sys
import urllib.parse

SECTIONS = ("Inlines", "Backslash escapes", "Entity and numeric character references", "Code spans",
            "Emphasis and strong emphasis", "Links", "Images", "Autolinks", "Raw HTML", "Hard line breaks",
            "Soft line breaks", "Textual content")
FENCE = "`" * 32
EXAMPLE = re.compile(rf"^{FENCE} example\n(.*?)^\.\n(.*?)^{FENCE}$|^#{{1,6}} *(.*?)$", re.S | re.M)
TOKEN = re.compile(r"<!--.*?-->|<\?.*?\?>|<!\[CDATA\[.*?\]\]>|<(?:[^<>\"']|\"[^\"]*\"|'[^']*')*>|[^<]+", re.S)
STYLES = {"em": "em", "strong": "strong", "code": "code"}


def examples(specification):
    section = ""
    number = 0
    for match in EXAMPLE.finditer(specification.split("<!-- END TESTS -->")[0]):
        if match[3] is not None:
            section = match[3]
            continue
        number += 1
        yield number, section, match[1].replace("→", "\t")[:-1], match[2].replace("→", "\t")[:-1]


def attribute(tag, name):
    return html.unescape(re.search(rf'{name}="([^"]*)"', tag)[1])


def runs(markdown, body):
    """The runs as (styles, text), neighbours of the same looks joined."""
    result = []
    opened = []

    def add(text):
        styles = tuple(style for _, style in sorted(opened, key=lambda entry: entry[0] == "a"))
        styles = tuple(dict.fromkeys(styles))
        if text and result and result[-1][0] == styles:
            result[-1] = (styles, result[-1][1] + text)
        elif text:
            result.append((styles, text))

    for token in TOKEN.findall(body):
        name = re.match(r"</?(\w+)", token)
        if not token.startswith("<"):
            add(html.unescape(token))
        elif name and token.startswith("</") and opened and opened[-1][0] == name[1]:
            opened.pop()
        elif token in markdown:
            add(token)
        elif name[1] in STYLES:
            opened.append((name[1], STYLES[name[1]]))
        elif name[1] == "a":
            opened.append(("a", "link=" + urllib.parse.unquote(attribute(token, "href"))))
        elif name[1] == "img":
            add(attribute(token, "alt"))
        else:
            raise ValueError(f"unexpected {token} for {markdown}")
    return result


def described(parts):
    order = ["strong", "em", "code"]
    text = ""
    for styles, content in parts:
        names = [name for name in order if name in styles] + [name for name in styles if name.startswith("link=")]
        text += f"⟨{' '.join(names)}|{content}⟩" if names else content
    return text


def escaped(text):
    return text.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\n")


def main():
    specification = open(sys.argv[1], encoding="utf-8").read()
    version = re.search(r"^version: (\S+)$", specification, re.M)[1]
    left_out = collections.Counter()
    rows = []
    for number, section, markdown, body in examples(specification):
        if section not in SECTIONS:
            continue
        paragraph = re.fullmatch(r"<p>(.*)</p>", body, re.S)
        if "\n" in markdown:
            left_out["several lines"] += 1
        elif body == markdown:
            rows.append((number, section, markdown, markdown))
        elif not paragraph:
            left_out["start a block"] += 1
        else:
            start, end = re.fullmatch(r"([ \t]*).*?([ \t]*)", markdown).groups()
            rows.append((number, section, markdown, start + described(runs(markdown, paragraph[1])) + end))

    print(f"# Examples of the CommonMark specification {version}, npm package commonmark-spec {version}.0, © John MacFarlane,")
    print("# licence CC BY-SA 4.0 (https://creativecommons.org/licenses/by-sa/4.0/). Changed: the HTML became styled runs, by")
    print("# commonmark-examples.py. Columns: number, section, text, runs; backslash, tab and line feed as \\\\ \\t \\n.")
    print(f"# {len(rows)} examples; left out: " + ", ".join(f"{count} {why}" for why, count in sorted(left_out.items())))
    for number, *texts in rows:
        print(number, *map(escaped, texts), sep="\t")


main()
