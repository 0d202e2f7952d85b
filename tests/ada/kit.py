"""The packages of ada/, compiled once for all the programs that tests of this folder make of them.

What is kept for a later run is named after a hash of all that it was made from, and made by only
one of several tests at a time; the others wait for it.
"""

import contextlib
import fcntl
import hashlib
import pathlib
import shutil
import subprocess

KIT = pathlib.Path(__file__).resolve().parents[2] / "ada"
LIMIT = 300  # seconds for one command
HASH_LENGTH = 20


class Failure(Exception):
    """What is wrong, in one text."""


def run(command, folder, environment=None):
    """What the command prints; a failure with the same text when its status is not 0."""
    done = subprocess.run(command, cwd=folder, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False, timeout=LIMIT)
    if done.returncode != 0:
        raise Failure(f"{' '.join(map(str, command))}: status {done.returncode}\n{done.stdout}")
    return done.stdout


def units_of(folder):
    """The Ada sources in a folder."""
    return sorted(path for path in folder.iterdir() if path.suffix in (".adb", ".ads"))


def hash_of(paths, *texts):
    """A name for the contents of files, and for texts."""
    digest = hashlib.sha256()
    for text in texts:
        digest.update(f"{len(text)}:{text}".encode())
    for path in paths:
        content = path.read_bytes()
        digest.update(f"{path.name}:{len(content)}:".encode() + content)
    return digest.hexdigest()[:HASH_LENGTH]


@contextlib.contextmanager
def locked(path):
    """Only one of several tests at a time goes on from here."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with open(path, "w", encoding="ascii") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield


def build_kit(cache, *folders):
    """The folder with the sources and objects of the kit, and of the folders' packages."""
    sources = [path for folder in (KIT, *folders) for path in units_of(folder)]
    kit = cache / ("kit-" + hash_of(sources, run(["gnatmake", "--version"], KIT)))
    with locked(cache / "lock"):
        if not kit.exists():
            for old in cache.glob("kit-*"):
                shutil.rmtree(old)
            unfinished = cache / "unfinished"
            shutil.rmtree(unfinished, ignore_errors=True)
            unfinished.mkdir()
            for source in sources:
                shutil.copy(source, unfinished)
            run(["gnatmake", "-q", "-c", "-O1"] + sorted({path.stem for path in sources}),
                unfinished)
            unfinished.rename(kit)
    return kit
