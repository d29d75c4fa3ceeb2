#!/usr/bin/env python3
"""Puts the page into one file: assemble.py WASM HTML CSS JS... PAGE

The scripts are modules for those who read them; here they become one, in the order in which they
are named. The page allows itself only what is in it, by the hashes of its script and style."""

import gzip
import re
import sys
from base64 import b64encode
from hashlib import sha256
from pathlib import Path

wasm, html, style, *scripts, page = map(Path, sys.argv[1:])


def one_script():
    text = "\n".join(script.read_text(encoding="utf-8") for script in scripts)
    text = re.sub(r"^import [^;]*;\n", "", text, flags=re.M)
    text = re.sub(r"^export ", "", text, flags=re.M)
    return re.sub(r"^ *//.*\n", "", text, flags=re.M)


def allowed(text):
    return f"'sha256-{b64encode(sha256(text.encode()).digest()).decode()}'"


parts = {"style": style.read_text(encoding="utf-8"), "script": one_script(),
         # The time in its head is 0, so that the same program gives the same page.
         "program": b64encode(gzip.compress(wasm.read_bytes(), 9, mtime=0)).decode()}
parts["policy"] = (f"default-src 'none'; base-uri 'none'; form-action 'none'; img-src data:; "
                   f"style-src {allowed(parts['style'])}; "
                   f"script-src {allowed(parts['script'])} 'wasm-unsafe-eval'")
text = html.read_text(encoding="utf-8")
page.write_text(re.sub(r"\{\{(\w+)\}\}", lambda mark: parts[mark[1]], text), encoding="utf-8")
