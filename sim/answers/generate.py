#!/usr/bin/env python3
"""Writes the simulated board's answer files from the tables in this script.

The rail nominals go to rails.tsv and the I2C device list to i2c.tsv; the pmuadc, buck and
buckcheck answers of each model are derived from the same rows, with small fixed offsets so
that a good board reads close to, but not exactly on, its nominal values. Files written here
may be replaced by real transcripts at any time; tst_sim checks pmuadc answers against
rails.tsv, so a replaced answer that drifts more than 2 % from its nominal shows up there.

Run from this folder:  python3 generate.py
"""
import hashlib, os

MODELS = [  # name, folder, regulatory number, family, NAND KiB (hex), Hydra?
    ("IP 6", "ip6", "A1549", "6", None, False),
    ("IP 6 Plus", "ip6plus", "A1522", "6", None, False),
    ("IP 6s", "ip6s", "A1633", "6s", 0x4000000, False),
    ("IP 6s Plus", "ip6splus", "A1634", "6s", 0x8000000, False),
    ("IP 7", "ip7", "A1660", "7", 0x8000000, False),
    ("IP 7 Plus", "ip7plus", "A1661", "7", 0x10000000, False),
    ("IP 8", "ip8", "A1863", "8", 0x4000000, True),
    ("IP 8 Plus", "ip8plus", "A1864", "8", 0x10000000, True),
    ("IP X", "ipx", "A1865", "X", 0x10000000, True),
]

def jitter(key, spread=0.008):
    """A fixed offset in [-spread, +spread] per key, so answers are stable between runs."""
    h = int(hashlib.sha1(key.encode()).hexdigest()[:8], 16)
    return (h / 0xFFFFFFFF * 2 - 1) * spread

def rails_for(model, family):
    # (label, nominal, unit, net, chip, class)
    r = [
        ("vbuck0:", 900.0, "mV", "PP_CPU", "CPU", 0),
        ("ibuck0:", 352.40, "mA", "I_PP_CPU", "CPU", 0),
        ("vbuck1:", 0.0, "mV", "PP_GPU", "GPU", 0),
        ("vbuck2:", 950.0, "mV", "PP_SOC_VAR", "CPU", 0),
        ("vbuck5:", 1060.0, "mV", "PP_SRAM_VAR2", "CPU", 0),
        ("vldo8:", 3000.0, "mV", "PP3V0_NAND", "NAND", 0),
        ("vldo9:", 1800.0, "mV", "PP1V8_NAND", "NAND", 0),
        ("inand:", 48.60, "mA", "I_PP3V0_NAND", "NAND", 0),
        ("vbuck3:", 1800.0, "mV", "PP1V8_SDRAM", "PMU", 2),
        ("ibuck3:", 95.40, "mA", "I_PP1V8_SDRAM", "PMU", 2),
        ("vbuck4:", 1200.0 if family in ("6", "6s") else 1100.0, "mV",
         "PP1V2_SDRAM" if family in ("6", "6s") else "PP1V1_SDRAM", "PMU", 2),
        ("vldo1:", 2800.0, "mV", "PP2V8_ALWAYS", "PMU", 2),
        ("vldo2:", 3000.0, "mV", "PP3V0_PROX_ALS", "PMU", 2),
        ("vldo4:", 1800.0, "mV", "PP1V8_ALWAYS", "PMU", 2),
        ("vldo5:", 3300.0, "mV", "PP3V3_USB", "PMU", 2),
        ("vldo10:", 2900.0, "mV", "PP2V9_TOUCH", "PMU", 2),
        ("vldo11:", 1800.0, "mV", "PP1V8_VA", "PMU", 2),
    ]
    if family in ("6", "6s"):
        # The Tristar of the older boards hangs on LDO3, its accessory supply on LDO6.
        r += [("vldo3:", 3000.0, "mV", "PP3V0_TRISTAR", "PMU", 2),
              ("vldo6:", 3300.0, "mV", "PP3V3_ACC", "PMU", 2)]
    else:
        r += [("vldo7:", 3000.0, "mV",
               "PP3V0_TRISTAR_ANT_PROX" if family == "7" else "PP3V0_S2", "PMU", 2),
              ("vldo6:", 3000.0, "mV", "PP_ACC_VAR", "PMU", 2)]
    if family == "6":
        r += [("vbuck6:", 0.0, "mV", "NC", "PMU", 2)]
    else:
        r += [("vbuck6:", 0.0 if family == "6s" else 1250.0, "mV",
               "PP_CAMERA" if family == "6s" else "PP1V25_BUCK6", "PMU", 2),
              ("vbuck7:", 850.0, "mV", "PP0V85_BUCK7", "PMU", 2),
              ("vbuck8:", 0.0, "mV", "PP_GPU_BUCK8", "GPU", 0)]
    if family in ("7", "8", "X"):
        r += [("vbuck9:", 0.0, "mV", "PP_CAMERA", "PMU", 2)]
    if family == "X":
        r += [("vbuck10:", 1800.0, "mV", "PP1V8_S2_SW2", "PMU", 2),
              ("vldo12:", 1800.0, "mV", "PP1V8_ACORN", "PMU", 2)]
    return r

def reading(model, label, nominal):
    return nominal * (1 + jitter(model + label)) if nominal else 0.0

def fmt(value, unit):
    return ("%.3f" % value) if unit == "mV" else ("%.2f" % value)

def refv(nominal, unit):
    """The reference text the rail screens compare against: volts with three decimals, or the
    current as the screens show it (last digit dropped, decimal comma)."""
    if unit == "mV":
        mv = int(round(nominal))
        sign = "-" if mv < 0 else ""
        return sign + "%d.%03d" % (abs(mv) // 1000, abs(mv) % 1000) if mv else "0"
    return fmt(nominal, unit)[:-1].replace(".", ",")

I2C = {  # family -> {bus: [(address, description)]}
    "6": {0: [("x74", "PMU"), ("x1a", "Tristar"), ("x75", "Charger")],
          1: [("x10", "Audio Codec"), ("x38", "Speaker Amp")],
          2: [("x36", "Front Camera"), ("x39", "Prox Sensor")]},
    "6s": {0: [("x74", "PMU"), ("x1a", "Tristar"), ("x75", "Charger Tigris")],
           1: [("x10", "Audio Codec"), ("x38", "Speaker Amp")],
           2: [("x36", "Front Camera"), ("x39", "Prox ALS Sensor")]},
    "7": {0: [("x74", "PMU"), ("x1a", "Tristar"), ("x75", "Charger Tigris")],
          1: [("x36", "Rear Camera"), ("x50", "Camera EEPROM")],
          2: [("x37", "Front Camera"), ("x39", "Prox ALS Sensor")],
          3: [("x33", "Audio Codec")],
          4: [("x4c", "Compass"), ("x3a", "Flex Front Sensor")]},
    "8": {0: [("x74", "PMU"), ("x1b", "Hydra"), ("x75", "Charger Tigris")],
          1: [("x72", "Dock Hydra Sense")],
          2: [("x37", "Front Camera"), ("x39", "Prox ALS Sensor")],
          3: [("x33", "Audio Codec"), ("x51", "RF Tuner")],
          4: [("x4c", "Compass")],
          6: [("x36", "Rear Camera")],
          7: [("x40", "Speaker Amp"), ("x41", "Receiver Amp")]},
    "X": {0: [("x74", "PMU"), ("x1b", "Hydra"), ("x75", "Charger Tigris")],
          3: [("x33", "Audio Codec"), ("x51", "RF Tuner")],
          4: [("x4c", "Compass")],
          5: [("x2a", "Acorn"), ("x4e", "Face ID Romeo")],
          6: [("x36", "Rear Camera")],
          7: [("x40", "Speaker Amp"), ("x41", "Receiver Amp")]},
}
# Buses a model does not offer for testing still exist on the board; model -> bus list
BUSES = {"IP 6": [0, 1, 2], "IP 6 Plus": [0, 1, 2], "IP 6s": [0, 1, 2], "IP 6s Plus": [0, 1, 2],
         "IP 7": [0, 1, 2, 3, 4], "IP 7 Plus": [0, 1, 2, 4], "IP 8": [0, 1, 2, 3, 4, 6, 7],
         "IP 8 Plus": [0, 2, 3, 4, 6, 7], "IP X": [0, 3, 4, 5, 6, 7]}

def write(path, text):
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    with open(path, "w", newline="\n") as f:
        f.write(text)

def pmuadc(model, family, rails):
    lines = ["PMU ADC read all channels", "channel          value"]
    for label, nom, unit, *_ in rails:
        lines.append("%s %s %s" % (label, fmt(reading(model, label, nom), unit), unit))
    ldo_t = "3" if family in ("6", "6s") else "7"
    bist = [("BIST ldo%s:" % ldo_t, 3000.0, "mV"), ("BIST ildo%s:" % ldo_t,
            3412.80 if family in ("8", "X") else 1762.50, "uA"),
            ("BIST buck3:", 1800.0, "mV"), ("BIST ldo6:", 3300.0 if family in ("6", "6s") else 3000.0, "mV"),
            ("BIST ildo6:", 820.40, "uA"), ("BIST buck0:", 900.0, "mV")]
    if family == "X":
        bist += [("BIST buck4:", 1100.0, "mV"), ("BIST buck3_sw2:", 1800.0, "mV")]
    lines.append("PMU built-in self test")
    for label, nom, unit in bist:
        lines.append("%s %s %s" % (label, fmt(reading(model, label, nom), unit), unit))
    if family == "X":
        acorn = [("ground", 2.0, "mV"), ("vin", 3850.0, "mV"), ("vb", 4000.0, "mV"),
                 ("vp", 10000.0, "mV"), ("vn", -6700.0, "mV"), ("vh", 5250.0, "mV"),
                 ("vl", 1200.0, "mV"), ("va", 3500.0, "mV"), ("vc", 1100.0, "mV"),
                 ("die_temp", 33.50, "C"), ("ia", 12.50, "mA"), ("in", 8.75, "mA"),
                 ("ip", 15.20, "mA"), ("ih", 4.40, "mA")]
        lines.append("Acorn ADC")
        for name, nom, unit in acorn:
            v = nom if name in ("ground", "die_temp") else reading(model, "acorn" + name, nom)
            lines.append("acorn %s : %s %s" % (name, fmt(v, "mV" if unit == "mV" else "mA"), unit))
    return "\n".join(lines) + "\n"

def serial_number(name):
    return "F17" + hashlib.sha256(name.encode()).hexdigest().upper()[:9]

def syscfg_list(name, rmd):
    seed = hashlib.sha256(name.encode()).hexdigest().upper()
    keys = [("SrNm", serial_number(name)), ("Mod#", "MN" + seed[9:13] + "LL/A"), ("Regn", "LL/A"),
            ("RMd#", rmd), ("MLB#", "C07" + seed[13:27]), ("BMac", ":".join(seed[i:i+2] for i in range(0, 12, 2))),
            ("WMac", ":".join(seed[i:i+2] for i in range(12, 24, 2))), ("NvSn", seed[24:40]),
            ("Batt", "F5D" + seed[40:54]), ("LCM#", "C11" + seed[30:46]), ("CLHS", "0x00000001"),
            ("Sku ", "0x" + seed[2:10]), ("Mode", "0x00000000")]
    lines = ["Key   Value"]
    for k, v in keys:
        lines.append("%s  %s" % (k, v))
    # Calibration blobs make the listing long, as it is on a real board.
    for i in range(56):
        blob = hashlib.sha256((name + str(i)).encode()).hexdigest()
        lines.append("C%03X  0x%s 0x%s" % (i, blob[:64], blob[32:64] + blob[:32]))
    return "\n".join(lines) + "\n"

def common():
    """Answers that are the same on every model, and those of the dead-radio profile."""
    index = []
    def add(cmd, fname, text, folder="common"):
        write(os.path.join(folder, fname), text)
        index.append((folder, "%s\t%s" % (cmd, fname)))
    add("baseband --on", "baseband-on.txt", "Powering on baseband\nBB_HSIC_RDY asserted\nbaseband --on success\n")
    add("baseband --off", "baseband-off.txt", "Powering off baseband\nbaseband --off done\n")
    add("bluetooth --on", "bluetooth-on.txt", "Bluetooth power on success\n")
    add("bluetooth --off", "bluetooth-off.txt", "Bluetooth power off done\n")
    add("wifi --on", "wifi-on.txt", "Wifi power on success\nGPS is already on\n")
    add("wifi --off", "wifi-off.txt", "Wifi power off done\n")
    add("gps --on", "gps-on.txt", "GPS power on success\n")
    add("gps --off", "gps-off.txt", "GPS power off done\n")
    add("baseband --on", "baseband-on.txt", "Powering on baseband\nbaseband did not respond, timeout\n",
        "profiles/dead-radio")
    add("bluetooth --on", "bluetooth-on.txt", "Bluetooth power on failed: no response from chip\n",
        "profiles/dead-radio")
    add("wifi --on", "wifi-on.txt", "Wifi power on failed: chip not detected\n", "profiles/dead-radio")
    add("gps --on", "gps-on.txt", "GPS power on failed: no response\n", "profiles/dead-radio")
    for cmd, what in [("bl -n", "backlight on, level 50%"), ("bl --off", "backlight off"),
                      ("bl -l", "backlight level low"), ("bl -m", "backlight level medium"),
                      ("bl -h", "backlight level high")]:
        add(cmd, "bl/%s.txt" % cmd[4:].lstrip("-"), what + "\n")
    add("bl -r", "bl/r.txt", "".join("backlight level %d\n" % lv for lv in range(0, 101, 10)))
    add("bl -p *", "bl/p.txt", "backlight level %ARG%\n")
    add("touch --on", "touch-on.txt", "Touch controller powered on\n")
    add("touch --off", "touch-off.txt", "Touch controller powered off\n")
    add("testmemory", "testmemory.txt", "".join("memory test %-12s Passed\n" % t for t in
        ["walking-1", "walking-0", "checkerboard", "address", "random"]) + "testmemory: Passed\n")
    big = ["testmemory 1MB read/write, 256 blocks of 4 KiB"]
    for block in range(256):
        base = 0x800000000 + block * 0x1000
        for pattern in ("0x55555555", "0xAAAAAAAA"):
            big.append("block %3d addr 0x%09X pattern %s write ok read ok" % (block, base, pattern))
    big.append("testmemory --1MB: Passed")
    add("testmemory --1mb", "testmemory-1mb.txt", "\n".join(big) + "\n")
    add("battery --properties", "battery.txt", "".join("%-24s %s\n" % kv for kv in [
        ("Voltage:", "3854 mV"), ("Current:", "-285 mA"), ("Temperature:", "29.6 C"),
        ("CycleCount:", "212"), ("DesignCapacity:", "1960 mAh"), ("FullChargeCapacity:", "1788 mAh"),
        ("RemainingCapacity:", "1102 mAh"), ("StateOfCharge:", "61 %"), ("Health:", "91 %"),
        ("ChargerConnected:", "No"), ("Serial:", "F5D7211A2KGH5K1AE"), ("Manufacturer:", "SWD"),
        ("ChemistryID:", "0x1D91"), ("GasGauge:", "TI bq27546 fw 0x0700")]))
    add("reset", "reset.txt", "Resetting device...\n")
    add("buttoncnt --dqe", "buttoncnt.txt", "Button count test running, results on the device screen\n"
        "Send /q to quit\n")
    add("/q", "quit-buttons.txt", "Button count test ended\n")
    cmds = ["accel", "als", "audio", "baseband", "battery", "bl", "bluetooth", "buck", "buckcheck",
            "buttoncnt", "camisp", "charge", "compass", "consoleinit", "device", "diags", "display",
            "dock", "exit", "gps", "gyro", "help", "hydra", "i2c", "mic", "nand", "nandsize", "nanduid",
            "pmuadc", "pmureg", "prox", "reset", "rtc", "sensor", "shutdown", "smokey", "soc", "speaker",
            "syscfg", "temp", "testmemory", "touch", "tristar", "usb", "version", "vibrator", "wifi"]
    help_lines = ["Available commands (type <command> --help for options):"]
    for c in cmds:
        help_lines.append("  %-14s %s" % (c, "diagnostics command " + c + ": run, read or control the " +
                                           c + " block of the board"))
    add("help", "help.txt", "\n".join(help_lines) + "\n")
    for folder in ("common", "profiles/dead-radio"):
        write(os.path.join(folder, "index.tsv"), "# command<TAB>answer file\n" +
              "\n".join(line for f, line in index if f == folder) + "\n")

def main():
    here = os.path.dirname(os.path.abspath(__file__))
    os.chdir(here)
    rails_rows = ["model\torig\tlabel\tnominal\tunit\tnet\tchip\tclass\trefv"]
    i2c_rows = ["model\tbus\taddress\tdescription\tentry"]
    for name, folder, rmd, family, nand, hydra in MODELS:
        index = []
        def add(cmd, fname, text):
            write(os.path.join(folder, fname), text)
            index.append("%s\t%s" % (cmd, fname))
        rails = rails_for(name, family)
        for orig, (label, nom, unit, net, chip, cls) in enumerate(rails, 1):
            rails_rows.append("\t".join([name, str(orig), label, fmt(nom, unit), unit, net, chip,
                                         str(cls), refv(nom, unit)]))
        add("syscfg print RMd#", "syscfg-rmd.txt", rmd + "\n")
        add("syscfg print SrNm", "syscfg-srnm.txt", serial_number(name) + "\n")
        add("pmuadc --read all", "pmuadc-all.txt", pmuadc(name, family, rails))
        # Plain buck read and the per-buck self test, from the same rail rows.
        bucks = sorted(((int(l[5:-1]), nom) for l, nom, u, *_ in rails if l.startswith("vbuck")))
        add("buck", "buck.txt", "".join("buck%d voltage: %s mV\n" % (n, fmt(reading(name, "buck%d" % n, nom), "mV"))
                                        for n, nom in bucks))
        for n, nom in bucks:
            # The check drives each buck to its target itself, so bucks that idle at 0 V in
            # diagnostics mode pass too; only the GPU buck of the oldest boards never does.
            target = nom or 900.0
            gpu_fail = family == "6" and n == 1
            meas = 0.0 if gpu_fail else reading(name, "check%d" % n, target)
            add("buckcheck %d" % n, "buckcheck/%d.txt" % n,
                "buckcheck starting, please wait\nbuck%d target %d mV measured %s mV %s\n"
                % (n, int(target), fmt(meas, "mV"), "FAIL" if gpu_fail else "PASS"))
        # Tigris charger
        tig = [("vbus", 5012.0, "mV"), ("ibus", 412.35, "mA"), ("vbat", 3854.0, "mV"),
               ("ibat", 285.10, "mA"), ("vdd", 3790.0, "mV"), ("die_temp", 31.25, "C")]
        if family in ("8", "X"):
            tig += [("vbus1", 5008.0, "mV"), ("vbus2", 4996.0, "mV"), ("vldo", 1800.0, "mV"),
                    ("vntc", 620.0, "mV")]
        add("pmuadc --sel tigris --read all", "tigris.txt", "Tigris ADC read all\n" + "".join(
            "tigris %s : %s %s\n" % (n, fmt(v if n == "die_temp" else reading(name, "tig" + n, v),
                                             "mV" if u == "mV" else "mA"), u) for n, v, u in tig))
        if family != "X":
            ch = [("vldo1", 5700.0, "mV"), ("vldo2", 5700.0, "mV"), ("vldo3", 5100.0, "mV"),
                  ("ildo1", 12.50, "mA"), ("ildo2", 11.80, "mA"), ("ildo3", 6.40, "mA"),
                  ("vneg", -5700.0, "mV"), ("ineg", 10.90, "mA"), ("vin", 3850.0, "mV"),
                  ("ground", 2.0, "mV"), ("vboost", 6000.0, "mV")]
            add("pmuadc --sel chestnut --read all", "chestnut.txt", "Chestnut ADC read all\n" + "".join(
                "chestnut %s : %s %s\n" % (n, fmt(v if n == "ground" else reading(name, "ch" + n, v), u), u)
                for n, v, u in ch))
        else:
            add("pmuadc --sel chestnut --read all", "chestnut.txt",
                "pmuadc: sensor chestnut not found on this board\n")
        # I2C scan: every bus the board has, devices in address order
        devs = I2C[family]
        for bus in range(8):
            if bus in devs:
                body = "Scanning I2C bus %d\n" % bus + "".join(
                    "  device answered at 0%s\n" % a for a, _ in sorted(devs[bus]))
                for a, d in devs[bus]:
                    if bus in BUSES[name]:
                        i2c_rows.append("\t".join([name, str(bus), a, d, "%d%s-%s" % (bus, a, d)]))
            elif bus in BUSES[name] or family in ("8", "X"):
                body = "Scanning I2C bus %d\n  no device answered\n" % bus
            else:
                body = "i2c: bus %d does not exist on this board\n" % bus
            add("i2c -s %d" % bus, "i2c/%d.txt" % bus, body)
        if nand:
            gb = nand * 1024 // 1000 ** 3
            add("nandsize", "nandsize.txt", "nand size check Passed, size in KiB: 0x%X\n" % nand)
            add("nanduid", "nanduid.txt", "NAND UID read Passed\nUID: %s\n"
                % hashlib.sha1(name.encode()).hexdigest()[:32].upper())
            add("nand --getinfo", "nand-getinfo.txt",
                "NAND info\n  vendor name: %s\n  capacity: %d GB\n  channels: 2\n  dies per channel: 2\n"
                "  block size: 0x400000\n  firmware: %s\nnand --getinfo Passed\n"
                % ("Toshiba" if family in ("6s", "8") else "Hynix", gb, "A0" + rmd[1:]))
        add("syscfg list", "syscfg-list.txt", syscfg_list(name, rmd))
        chip = "hydra" if hydra else "tristar"
        regs = "".join("%s reg 0x%02X = 0x%02X\n" % (chip, r, (r * 37 + 11) & 0xFF) for r in range(0x10, 0x40))
        add("tristar -p", "tristar-p.txt", "%s id: %s rev B1\n%s" % (chip, chip.upper(), regs))
        add("tristar --read dx1 --read dx2 --read acc1 --read acc2 --read idx --read vdx",
            "tristar-read.txt", "".join("%s %s: 0x%02X (%s)\n" % (chip, n, v, d) for n, v, d in [
                ("dx1", 0x12, "USB data +"), ("dx2", 0x13, "USB data -"), ("acc1", 0x40, "accessory id 1"),
                ("acc2", 0x41, "accessory id 2"), ("idx", 0x07, "identification bus"),
                ("vdx", 0x1C, "data line voltage detect")]) + "%s communication registers read complete\n" % chip)
        write(os.path.join(folder, "index.tsv"),
              "# command<TAB>answer file, for %s\n" % name + "\n".join(index) + "\n")
    common()
    write("rails.tsv", "\n".join(rails_rows) + "\n")
    write("i2c.tsv", "\n".join(i2c_rows) + "\n")

if __name__ == "__main__":
    main()
