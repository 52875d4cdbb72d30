"""Reads the library's WAV files with Python's wave module, libsndfile and SoX and compares what they find.

usage: check_readers.py FOLDER PROGRAM...

PROGRAM, with an emulator before it where there is one, writes the files into FOLDER, which is made anew.
"""
import math
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import wave

RATE = 11025
COUNT = 4097
SAMPLES = [(i - 2048) / 2048 for i in range(COUNT)]
STDERR = b"\xe6\x97\xa0\xe6\xb3\x95\xe5\x88\x9b\xe5\xbb\xba\xe6\x96\x87\xe4\xbb\xb6"
STDOUT = b"ERROR: couldn't save file to toolong.wav"


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


# Sample to code. Products with 2^-11 are exact, so precision plays no part, but for 8 bits.
ENCODINGS = {
    8: lambda s: math.trunc(single(single(single((s + 1) * 0.5) * 254) + 1)) - 128,
    16: lambda s: math.trunc(s * 32767),
    24: lambda s: math.trunc(s * 8388607),
    32: lambda s: max(-2147483647, min(2147483647, math.trunc(s * 2147483648))),
}


class Expected:
    def __init__(self, name, depth, channels, count):
        self.name, self.depth, self.channels, self.count = name, depth, channels, count
        codes = [ENCODINGS[depth](s) for s in SAMPLES[:count]]
        self.codes = [code for code in codes for _ in range(channels)]

    def scaled(self, depth):
        return [code << (depth - self.depth) for code in self.codes]


def run(*command):
    return subprocess.run(command, check=True, capture_output=True)


def with_python(path, expected):
    with wave.open(str(path), "rb") as file:
        found = (file.getnchannels(), file.getsampwidth() * 8, file.getframerate(), file.getnframes())
        assert found == (expected.channels, expected.depth, RATE, expected.count), found
        data = file.readframes(file.getnframes())
    width = expected.depth // 8
    codes = [int.from_bytes(data[i:i + width], "little", signed=width > 1) for i in range(0, len(data), width)]
    assert codes == [code + (128 if width == 1 else 0) for code in expected.codes]


def with_sndfile(path, expected):
    text = run("sndfile-info", str(path)).stdout.decode("utf-8", "replace")
    for field, value in (("Sample Rate", RATE), ("Frames", expected.count), ("Channels", expected.channels)):
        assert re.search(rf"^{field}\s*: {value}$", text, re.M), text
    assert re.search(r"^Format\s*: 0x0001000" + {8: "5", 16: "2", 24: "3", 32: "4"}[expected.depth], text, re.M), text
    converted = path.with_suffix(".sndfile.raw")
    run("sndfile-convert", "-pcm32", str(path), str(converted))
    assert decoded(converted.read_bytes()) == expected.scaled(32)


def with_sox(path, expected):
    result = run("sox", str(path), "-t", "raw", "-e", "signed-integer", "-b", "32", "-L", "-")
    assert not result.stderr, result.stderr
    assert decoded(result.stdout) == expected.scaled(32)


def decoded(raw):
    return list(struct.unpack(f"<{len(raw) // 4}i", raw))


def main():
    folder, program = pathlib.Path(sys.argv[1]), sys.argv[2:]
    for reader in ("sndfile-info", "sndfile-convert", "sox"):
        if not shutil.which(reader):
            sys.exit(f"{reader} is missing; tools/setup.sh installs it")
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    written = subprocess.run(program, cwd=folder, check=True, capture_output=True)
    assert written.stderr.rstrip(b"\r\n") == STDERR, written.stderr
    assert written.stdout.rstrip(b"\r\n") == STDOUT, written.stdout
    assert not (folder / "toolong.wav").exists() and not (folder / "missing").exists()
    files = [Expected(f"pcm{depth}_{channels}_{count}.wav", depth, channels, count)
             for depth in ENCODINGS for channels in (1, 2, 3, 7) for count in (1, COUNT)]
    files += [Expected(f"stereo_{count}.wav", 16, 2, count) for count in (1, COUNT)]
    for expected in files:
        for reader in (with_python, with_sndfile, with_sox):
            try:
                reader(folder / expected.name, expected)
            except AssertionError as error:
                sys.exit(f"{expected.name} {reader.__name__}: {str(error) or 'other samples'}")
    print(f"{len(files)} files read alike by 3 readers")


main()
