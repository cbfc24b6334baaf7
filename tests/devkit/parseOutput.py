"""Reads what a receiver put out, one sentence or (in hexadecimal) one frame of corrections a line, with eyes of its own,
and writes what it found as one line of JSON each."""
import json
import sys

import pynmea2

# The bits of a word that each bit of its parity covers, and which of the last two bits of the word before.
PARITY = [
    (29, [1, 2, 3, 5, 6, 10, 11, 12, 13, 14, 17, 18, 20, 23]),
    (30, [2, 3, 4, 6, 7, 11, 12, 13, 14, 15, 18, 19, 21, 24]),
    (29, [1, 3, 4, 5, 7, 8, 12, 13, 14, 15, 16, 19, 20, 22]),
    (30, [2, 4, 5, 6, 8, 9, 13, 14, 15, 16, 17, 20, 21, 23]),
    (30, [1, 3, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 21, 22, 24]),
    (29, [3, 5, 6, 8, 9, 10, 11, 13, 15, 19, 22, 23, 24]),
]


def sentence(line):
    message = pynmea2.parse(line, check=True)
    found = {"data": [str(field) for field in message.data]}
    for field in message.fields:
        value = getattr(message, field[1], None)
        found[field[1]] = None if value is None else str(value)
    if isinstance(message, pynmea2.TalkerSentence):
        found["talker"] = message.talker
        found["type"] = message.sentence_type
    for name in ("latitude", "longitude"):
        if hasattr(message, name):
            found[name] = getattr(message, name)
    return found


def frame(data):
    bits = []
    for byte in data:
        if byte & 0xC0 != 0x40:
            raise ValueError("no byte of a frame: %02x" % byte)
        bits += [byte >> i & 1 for i in range(6)]
    if len(bits) % 30:
        raise ValueError("no whole words")
    last = {29: 0, 30: 0}
    payload = []
    for start in range(0, len(bits), 30):
        word = bits[start:start + 30]
        data_bits = [bit ^ last[30] for bit in word[:24]]
        for i, (before, covered) in enumerate(PARITY):
            parity = last[before]
            for number in covered:
                parity ^= data_bits[number - 1]
            if parity != word[24 + i]:
                raise ValueError("parity of word %d" % (start // 30))
        last = {29: word[28], 30: word[29]}
        payload += data_bits

    def number(first, width, signed=False):
        value = int("".join(map(str, payload[first:first + width])), 2)
        return value - (1 << width) if signed and payload[first] else value

    found = {"preamble": number(0, 8), "type": number(8, 6), "station": number(14, 10), "zcount": number(24, 13),
             "sequence": number(37, 3), "length": number(40, 5), "words": len(bits) // 30 - 2}
    if found["type"] == 3:
        found["reference"] = [number(48 + 32 * i, 32, True) / 100.0 for i in range(3)]
    elif found["type"] == 16:
        found["text"] = "".join(chr(number(i, 8)) for i in range(48, len(payload) - 7, 8))
    else:
        found["satellites"] = [number(i + 3, 5) for i in range(48, len(payload) - 39, 40)]
    return found


for text in sys.stdin.read().splitlines():
    try:
        result = sentence(text) if text.startswith("$") else frame(bytes.fromhex(text))
    except Exception as problem:  # whatever it is, the test shall see it
        result = {"error": "%s: %s" % (type(problem).__name__, problem)}
    print(json.dumps(result))
