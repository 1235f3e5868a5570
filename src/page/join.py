#!/usr/bin/env python3
"""Joins the page's parts to one file: join.py TEMPLATE STYLE STARTER GLUE CODE LIBRARY PAGE"""
import base64
import hashlib
import re
import sys


def read(path):
    with open(path, encoding='utf-8', newline='') as file:
        return file.read()


def digest(text):
    """The text as a content security policy names it."""
    return "'sha256-%s'" % base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()


def library(text):
    """As a script element can hold it; page.js takes the backslashes out again."""
    return re.sub(r'<(\\*(?:!--|/?script))', r'<\\\1', text, flags=re.I)


template, style, starter, glue, code, scales, page = sys.argv[1:]
style = read(style)
with open(code, 'rb') as file:
    code = base64.b64encode(file.read()).decode()
script = read(glue) + read(starter)
assert not re.search('<(!--|/?script)', script, re.I), 'the script cannot stand in a page'
policy = "default-src 'none'; style-src %s; script-src %s 'wasm-unsafe-eval'" % (
    digest(style), digest(script))
parts = {'POLICY': policy, 'STYLE': style, 'CODE': code, 'SCRIPT': script,
         'LIBRARY': library(read(scales))}
text = re.sub('@([A-Z]+)@', lambda found: parts[found[1]], read(template))
with open(page, 'w', encoding='utf-8', newline='') as file:
    file.write(text)
