#!/usr/bin/env python3
"""Writes the seed corpora of the byte-level fuzz targets (fuzz/corpus/<target>/).

Each seed is a small real exchange: the settings bytes that the target reads first,
then well-formed frames as a module or the Corvid system would send them (or, for the
simulator targets, as the client sends them). The file-reader corpora are plain .dat
and .def files kept by hand beside these.
"""
import os

HERE = os.path.dirname(os.path.abspath(__file__))


def closing(frame):
    """Check byte: makes first byte + low 7 bits of the rest a multiple of 128."""
    s = frame[0] + sum(b & 127 for b in frame[1:])
    return 128 + (128 - s % 128) % 128


def bus(addr_byte, header7, data, xaddr=None):
    f = [addr_byte, 128 | header7]
    if xaddr is not None:
        f.append(128 | xaddr)
    f += [128 | d for d in data]
    return f + [closing(f)]


def request(address, toggle, data, xaddr=None, bidirectional=True):
    h = 64 + (32 if bidirectional else 0) + (16 if xaddr is not None else 0) + len(data)
    return bus(address * 4 + 3 + toggle, h, data, xaddr)


def reply(address, toggle, data, xaddr=None):
    h = 96 + (16 if xaddr is not None else 0) + len(data)
    return bus(address * 4 + 3 + toggle, h, data, xaddr)


def corvid_header(length, toggle):
    h = 40 + length if length < 8 else (length - 8 if length < 16 else length)
    return h + (64 if toggle else 0)


def corvid(data, toggle=0):
    f = [corvid_header(len(data), toggle)] + [128 | d for d in data]
    return f + [closing(f)]


def write(target, name, data):
    d = os.path.join(HERE, "corpus", target)
    os.makedirs(d, exist_ok=True)
    with open(os.path.join(d, name), "wb") as f:
        f.write(bytes(data))


WAKE = [0, 0, 0, 255, 255, 255, 170, 170, 170]

# Direct reply receiver: flags, address, eXtended address, chunk size, incoming bytes.
# Flags bits 2-3 = 2 starts from toggle 64, so the first reply carries 64.
write("fuzz_direct_reply", "version", [2 | 8, 0, 0, 31] + reply(0, 64, [112, 0, 1, 2, 3, 4]))
write("fuzz_direct_reply", "layout-two-pins",
      [8, 3, 0, 4] + reply(3, 64, [114, 0, 2]) + reply(3, 0, [114, 1, 3]))
write("fuzz_direct_reply", "bad-copy-then-good",
      [8, 0, 0, 31] + reply(0, 64, [114, 0, 2])[:-1] + [0x81] + reply(0, 64, [114, 0, 2]))
write("fuzz_direct_reply", "xaddress", [1 | 8, 2, 17, 31] + reply(2, 64, [114, 5, 3], xaddr=17))
write("fuzz_direct_reply", "garbage-then-reply",
      [8, 0, 0, 2] + [0x80, 0xFF, 0xAA] + reply(0, 64, [114, 0, 2]))
write("fuzz_direct_reply", "steps",
      [0, 1, 0, 31] + reply(1, 64, [115, 4, 0, 0, 24, 1, 0, 0, 0]) + reply(1, 0, [115, 4, 0, 1, 25, 0, 0, 0, 0]))

# Corvid receiver: flags (bits 2-3 = round kind), address, eXtended address, chunk size.
# A tunnelled read: the request is answered with an empty frame, the first poll with
# the module's reply 0, 96 + address, 96 + N, data.
T = 96
write("fuzz_corvid_reply", "tunnel-read",
      [0, 0, 0, 0] + corvid([], 0) + corvid([0, T + 0, 96 + 3, 114, 0, 2], 1))
write("fuzz_corvid_reply", "tunnel-read-two-polls",
      [0, 20, 0, 0] + corvid([], 0) + corvid([], 1) + corvid([0, T + 20, 96 + 3, 114, 0, 3], 0))
write("fuzz_corvid_reply", "tunnel-xaddress",
      [1, 20, 17, 0] + corvid([], 0) + corvid([0, T + 20, 112 + 3, 17, 114, 0, 2], 1))
write("fuzz_corvid_reply", "tunnel-write", [4, 0, 0, 0] + corvid([], 0) + corvid([], 1))
write("fuzz_corvid_reply", "poll-long-frame", [8, 0, 0, 31] + corvid(list(range(12)), 0))
write("fuzz_corvid_reply", "receive-version", [12, 0, 0, 31] + corvid([1, 2, 48, 45], 0)
      + corvid([1, 10, 2, 8, 16], 1))

# Simulated module: rotation, then what a client sends on the bus.
write("fuzz_sim_module", "version",
      [0] + WAKE + [3, 192, 189] + request(0, 64, [112, 0]))
write("fuzz_sim_module", "pin-read-write",
      [1] + request(0, 64, [114, 0]) + request(0, 0, [98, 0, 2]) + request(0, 64, [115, 0, 0, 0])
      + request(0, 0, [99, 0, 0, 0, 24, 1, 0, 0, 0]) + request(0, 64, [118, 0]))
write("fuzz_sim_module", "xaddress",
      [0] + request(3, 64, [112, 2], xaddr=17) + request(3, 0, [96, 2, 17], xaddr=17))
write("fuzz_sim_module", "general-items",
      [2] + sum((request(5, (i % 2) * 64, [112, i]) for i in range(14)), []))
write("fuzz_sim_module", "config-and-events",
      [0] + request(0, 64, [81, 3]) + request(0, 0, [97, 3, 1, 64, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100])
      + request(0, 64, [116, 3]) + request(0, 0, [100, 3, 0x01, 0x1F, 0x2F, 0x3F]) + request(0, 64, [0, 39, 3, 70]))

# Simulated Corvid system: flags, then what a client sends.
write("fuzz_sim_corvid", "versions", [0] + corvid([1, 2], 0) + corvid([1, 10], 1))
write("fuzz_sim_corvid", "tunnel-read-poll",
      [0] + corvid([0, T + 0, 96, 112, 0], 0) + corvid([], 1) + corvid([], 0))
write("fuzz_sim_corvid", "tunnel-xaddress",
      [1] + corvid([0, T + 20, 112, 17, 114, 0], 0) + corvid([], 1) + corvid([], 0))
write("fuzz_sim_corvid", "transparent",
      [4] + corvid([1, 5, 16], 0) + WAKE + [3, 192, 189] + request(0, 64, [112, 0]))
