"""Writing a generator's files: the one command line both generators share."""

import argparse
from pathlib import Path


def write_all(description, default_folder, what, files):
    """Parses --out (default: default_folder) and writes every file of the
    dict name -> bytes below it."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--out", type=Path, default=default_folder, help="%s to write (default: %%(default)s)" % what)
    args = parser.parse_args()
    for name, data in sorted(files.items()):
        path = args.out / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)
    print("wrote %d files, %d bytes, to %s" % (len(files), sum(map(len, files.values())), args.out))
