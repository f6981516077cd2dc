#!/usr/bin/env python3
"""Writes the seed corpus of every fuzz target from the simulated phone's answers.

Each seed is what the phone would put on the line (echo, answer, prompt), in the target's input
layout: leading control bytes, then fields cut at the record separator 0x1E (see FuzzInput.h).
Run from anywhere; it rewrites fuzz/corpus/.
"""
import pathlib
import shutil

HERE = pathlib.Path(__file__).resolve().parent
ANSWERS = HERE.parent / "sim" / "answers"
CORPUS = HERE / "corpus"
RS = b"\x1e"
PROMPT = b"[0001a1f3:00000001] :-) "


def answer(path):
    return (ANSWERS / path).read_bytes()


def line(command, body):
    """The console's view of one exchange: echo, CR LF, the body, the prompt."""
    return command + b"\r\n" + body + PROMPT


def slices(data, n):
    step = max(1, len(data) // n)
    return [data[i:i + step] for i in range(0, len(data), step)]


def main():
    shutil.rmtree(CORPUS, ignore_errors=True)
    rmd = line(b"syscfg print RMd#\r", answer("ip7/syscfg-rmd.txt"))
    rails = answer("ip7/pmuadc-all.txt")
    seeds = {
        "fuzz_console_exchange": {
            # flags: receiver, owner, live echo (+ re-send, unregister, pull) / pull tick / slices
            "rmd": b"\x07\x03" + RS.join(slices(rmd, 3)),
            "rails-resend-pull": b"\x3f\x05" + RS.join(slices(line(b"pmuadc --read all", rails), 6)),
            "gap": b"\x01\x00" + rmd[:10] + RS + RS + RS + rmd[10:],
            "utf8-split": b"\x05\x00" + "Referência".encode()[:8] + RS + "Referência".encode()[8:],
        },
        "fuzz_connection": {
            # flags: model combo visible, lookup / first answer / answer to asking again
            "rmd": b"\x03" + rmd,
            "rejected": b"\x03" + line(b"yscfg print RMd#\r", b'Command "yscfg" not found\n') + RS + rmd,
            "nand": b"\x02" + line(b"syscfg print RMd#\r", b"SystemConfig Driver is missing!\n"),
            "short": b"\x03" + b"A1778\r\n[",
        },
        "fuzz_rail_engine": {
            # volt decimals, amp decimals / rows "label<TAB>refv" / answer
            "ip7": b"\x04\x02" + rails,
            "rows": b"\x03\x01" + b"vldo9:\t1.800" + RS + b"inand:\t48,5" + RS + rails,
            "timeout": b"\x04\x02" + b"vbuck0: timeout mV\nibuck0: 35 mA\n",
        },
        "fuzz_buck_engine": {
            "buck": answer("ip7/buck.txt"),
            "buckcheck0": answer("ip7/buckcheck/0.txt"),
            "buckcheck1": answer("ip7/buckcheck/1.txt"),
        },
        "fuzz_auto_comparador": {
            # long-answer flag / console / recorded / masks
            "wifi": b"\x00" + b"\r\n" + answer("common/wifi-on.txt") + PROMPT + RS
                    + b"xx" + answer("common/wifi-on.txt") + RS + b"'jox'on" + RS + b"GPS",
            "nanduid": b"\x00" + answer("ip7/nanduid.txt") + RS + answer("ip7/nanduid.txt") + RS + b"0x",
            "long": b"\x01" + answer("common/help.txt")[:400],
        },
        "fuzz_chip_engine": {
            # chip (low two bits) and model (the rest) / the answer
            "tigris-ip8": bytes([0 + 4 * 6]) + line(b"pmuadc --sel tigris --read all", answer("ip8/tigris.txt")),
            "tristar-ip6": bytes([1 + 4 * 0]) + line(b"pmuadc --read all", answer("ip6/pmuadc-all.txt")),
            "chestnut-ip7": bytes([2 + 4 * 4]) + line(b"pmuadc --sel chestnut --read all", answer("ip7/chestnut.txt")),
            "acorn-ipx": bytes([3 + 4 * 8]) + line(b"pmuadc --read all", answer("ipx/pmuadc-all.txt")),
            "end": bytes([2 + 4 * 4]) + b"chestnut vldo1 : 5700.0",
        },
        "fuzz_number_routines": {
            # text / reference
            "mv": b"4998.000" + RS + b"4.998",
            "neg": b"-152.5" + RS + b"0.900",
            "ma": b"352,33" + RS + b"352,4",
            "blank": b"12 5" + RS + b"0",
        },
    }
    for target, files in seeds.items():
        folder = CORPUS / target
        folder.mkdir(parents=True)
        for name, data in files.items():
            (folder / name).write_bytes(data)


if __name__ == "__main__":
    main()
