"""Shows the records of libravix_types in gdb as the library's own texts do.

gdb loads this by itself with the library when both are installed where it looks; otherwise:

    (gdb) source <prefix>/share/ravix_types/gdb/ravix_types_printers.py

Which text shows which field is read from ravix_types_facts.json beside this file, which the library's build writes from
its field lists. "print/r" shows the plain structure, secrets included.
"""

import json
import os
import re

import gdb
import gdb.printing

with open(os.path.join(os.path.dirname(os.path.realpath(__file__)), "ravix_types_facts.json"), encoding="utf-8") as file:
    FACTS = json.load(file)
RECORDS = FACTS["records"]
TEXTS = FACTS["texts"]

NULL = "<nullptr>"


def octets(value, count):
    return [int(value[i]) & 0xFF for i in range(count)]


def bare(value_type):
    """The type without typedefs and qualifiers."""
    return value_type.strip_typedefs().unqualified()


def number_text(fact, number):
    """What the library shows for a number."""
    if "flags" in fact:
        number &= (1 << 64) - 1
        unnamed = number & ~sum(1 << bit for bit, _ in fact["flags"])
        shown = "".join(name + " " for bit, name in fact["flags"] if number >> bit & 1)
        return f"[ {shown}]" + (f" and {unnamed:#x}" if unnamed else "")
    if "bits" in fact:
        return f"{number & (1 << fact['bits']) - 1:0{fact['bits']}b}"
    if "timestamp" in fact:  # the date depends on the clocks of the process
        return "never" if number == fact["timestamp"] else f"[{number // 1000}.{number % 1000:03}]"
    if str(number) in fact["names"]:
        return fact["names"][str(number)]
    if "errors" in fact:  # a negative errno value
        return os.strerror(-number)
    most, beyond = fact.get("most", (number, ""))
    return (beyond if number > most else fact["otherwise"]).format(number)


def field_text(fact, value):
    """The library's text of a value or of an array of values."""
    if "{" not in fact.get("otherwise", "{") and not fact["names"]:  # one text for whatever there is
        return fact["otherwise"]
    if bare(value.type).code == gdb.TYPE_CODE_ARRAY:
        return ", ".join(number_text(fact, int(value[i])) for i in range(bare(value.type).range()[1] + 1))
    return number_text(fact, int(value))


def octets_text(value):
    """A MAC address or UUID, told by its length."""
    shown = "".join(f"{o:02X}" for o in octets(value, bare(value.type).range()[1] + 1))
    if len(shown) == 12:
        return ":".join(shown[i : i + 2] for i in range(0, 12, 2))
    return "-".join((shown[:8], shown[8:12], shown[12:16], shown[16:20], shown[20:]))


def channel_info_text(value):
    """primary/centre/width in MHz/puncture map; the range of channels is left out."""
    width = field_text(TEXTS[RECORDS["ravix_channel_info"]["fields"]["channel_width"]], value["channel_width"])
    return "{:4}/{:4}/{:>3}/{:04x}".format(
        int(value["primary_freq"]) // 1000,
        int(value["center_freq"]) // 1000,
        width.split()[0] if width.endswith("MHz") else "INV",
        int(value["puncture_map"]),
    )


def ip_addr_text(value):
    version = int(value["version"])
    octet = octets(value["addr"], 16)
    if version == 1:
        return ".".join(str(o) for o in octet[:4])
    if version == 2:
        return ":".join(f"{octet[i] << 8 | octet[i + 1]:x}" for i in range(0, 16, 2))
    return f"<Invalid IP version: {version}>"


def ssid_text(value):
    length = int(value["len"])
    shown = octets(value["ssid"], min(length, 32))
    printable = [0x20 <= o < 0x7F for o in shown]
    text = "'" + "".join(chr(o) if p else " " for o, p in zip(shown, printable)) + "'"
    dump = "" if all(printable) else "/[ " + "".join(f"{o:02x} " for o in shown) + "]"
    return f"{text}{dump} (len={length})"


def tlv_text(value):
    length = int(value["len"])
    head = f"type {int(value['type'])}, length {length}"
    if length == 0:
        return head
    if not int(value["value"]):
        return f"{head}: {NULL}"
    return head + ": " + " ".join(f"{o:02x}" for o in octets(value["value"], length))


VALUES = {
    "ravix_channel_info": channel_info_text,
    "ravix_ip_addr": ip_addr_text,
    "ravix_key": lambda value: "[SECRET]",
    "ravix_ssid": ssid_text,
    "ravix_tlv": tlv_text,
}


class Text:
    """A value of one line."""

    def __init__(self, value, text):
        self.value = value
        self.text = text

    def to_string(self):
        return self.text(self.value)


class Record:
    """A record by its field list; a table as its elements, after whatever else it holds."""

    def __init__(self, value):
        struct = bare(value.type)
        self.value = value
        self.tag = struct.tag
        self.facts = RECORDS.get(self.tag, {"fields": {}})
        self.is_table = {"count", "data"} <= {field.name for field in struct.fields()}

    def to_string(self):
        if not self.is_table:
            return self.tag + "_t"
        count = int(self.value["count"])
        lost = " without an array" if count and not int(self.value["data"]) else ""
        return f"{self.tag}_t of {count}{lost}"

    def members(self):
        """The names of the fields, of two alternatives only the one that there is."""
        for field in bare(self.value.type).fields():
            if field.name:
                yield field.name
            else:
                for tag, names in self.facts.get("alternatives", {}).items():
                    if str(int(self.value[tag])) in names:
                        yield names[str(int(self.value[tag]))]

    def child(self, name):
        value = self.value[name]
        number = self.facts["fields"].get(name)
        if number is not None:
            return field_text(TEXTS[number], value)
        field_type = bare(value.type)
        if field_type.code == gdb.TYPE_CODE_ARRAY and bare(field_type.target()).name == "char":
            text = bytes(octets(value, field_type.range()[1] + 1)).split(b"\0")[0]
            return '"' + text.decode("utf-8", "backslashreplace") + '"'
        if field_type.code == gdb.TYPE_CODE_ARRAY:
            return octets_text(value)
        if field_type.code == gdb.TYPE_CODE_PTR and not int(value):
            return NULL
        if field_type.code == gdb.TYPE_CODE_PTR and bare(field_type.target()).tag in RECORDS:
            return value.dereference()
        return value

    def children(self):
        for name in self.members():
            if not (self.is_table and name in ("count", "data")):
                yield name, self.child(name)
        if self.is_table and int(self.value["data"]):
            number = self.facts["fields"].get("data")
            for i in range(int(self.value["count"])):
                element = self.value["data"][i]
                yield f"[{i}]", element if number is None else field_text(TEXTS[number], element)


class Printers(gdb.printing.PrettyPrinter):
    """Finds the printer of a value by the name of its structure."""

    def __init__(self):
        super().__init__("ravix_types", [])

    def __call__(self, value):
        if re.fullmatch(r"(const )?ravix_mac_t", str(value.type)):
            return Text(value, octets_text)
        struct = bare(value.type)
        if struct.code != gdb.TYPE_CODE_STRUCT or not (struct.tag or "").startswith("ravix_"):
            return None
        if struct.tag in VALUES:
            return Text(value, VALUES[struct.tag])
        record = Record(value)
        return record if struct.tag in RECORDS or record.is_table else None


gdb.printing.register_pretty_printer(None, Printers(), replace=True)
