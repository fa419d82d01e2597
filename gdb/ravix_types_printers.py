"""Shows the records of libravix_types in gdb as the library's own texts do.

gdb loads this by itself with the library when both are installed where it looks; otherwise:

    (gdb) source <prefix>/share/ravix_types/gdb/ravix_types_printers.py

Which text shows which field is read from ravix_types_facts.json beside this file, which the library's build writes from
its field lists. "print/r" shows the plain structure, secrets included.
"""

import json
import os
import types

import gdb
import gdb.printing

with open(os.path.join(os.path.dirname(os.path.realpath(__file__)), "ravix_types_facts.json"), encoding="utf-8") as file:
    FACTS = json.load(file)
RECORDS = FACTS["records"]
for facts in RECORDS.values():
    facts["fields"] = {name: FACTS["texts"][number] for name, number in facts["fields"].items()}

NULL = "<nullptr>"


def bare(value_type):
    """The type without typedefs and qualifiers."""
    return value_type.strip_typedefs().unqualified()


def octets(value, count=None):
    """The first octets of an array, or all of them."""
    return [int(value[i]) & 0xFF for i in range(bare(value.type).range()[1] + 1 if count is None else count)]


def number_text(fact, number):
    """What the library shows for a number."""
    if "flags" in fact:
        number &= (1 << 64) - 1
        unnamed = number & ~sum(fact["flags"].values())
        shown = "".join(name + " " for name, flag in fact["flags"].items() if number & flag)
        return f"[ {shown}]" + (f" and {unnamed:#x}" if unnamed else "")
    if "bits" in fact:
        return f"{number & (1 << fact['bits']) - 1:0{fact['bits']}b}"
    if "timestamp" in fact:  # the date depends on the clocks of the process
        return "never" if number == fact["timestamp"] else f"[{number // 1000}.{number % 1000:03}]"
    if str(number) in fact["names"]:
        return fact["names"][str(number)]
    if "errors" in fact:  # a negative errno value
        return os.strerror(-number)
    return fact["beyond 100" if number > 100 and "beyond 100" in fact else "otherwise"].format(number)


def octets_text(value):
    """A MAC address or UUID, told by its length."""
    text = bytes(octets(value)).hex().upper()
    ends = (2, 4, 6, 8, 10, 12) if len(text) == 12 else (8, 12, 16, 20, 32)
    return (":" if len(text) == 12 else "-").join(text[a:b] for a, b in zip((0, *ends), ends))


def channel_info_text(value):
    """primary/centre/width in MHz/puncture map; the range of channels is left out."""
    width = number_text(RECORDS["ravix_channel_info"]["fields"]["channel_width"], int(value["channel_width"]))
    return "{:4}/{:4}/{:>3}/{:04x}".format(
        int(value["primary_freq"]) // 1000,
        int(value["center_freq"]) // 1000,
        width.split()[0] if width.endswith("MHz") else "INV",
        int(value["puncture_map"]),
    )


def ip_addr_text(value):
    version = int(value["version"])
    octet = bytes(octets(value["addr"]))
    if version == 1:
        return ".".join(str(o) for o in octet[:4])
    if version == 2:
        return ":".join(f"{octet[i] << 8 | octet[i + 1]:x}" for i in range(0, 16, 2))
    return f"<Invalid IP version: {version}>"


def ssid_text(value):
    shown = octets(value["ssid"], min(int(value["len"]), 32))
    printable = [0x20 <= o < 0x7F for o in shown]
    text = "'" + "".join(chr(o) if p else " " for o, p in zip(shown, printable)) + "'"
    dump = "" if all(printable) else "/[ " + "".join(f"{o:02x} " for o in shown) + "]"
    return f"{text}{dump} (len={int(value['len'])})"


def tlv_text(value):
    length = int(value["len"])
    head = f"type {int(value['type'])}, length {length}"
    if length == 0:
        return head
    return f"{head}: {bytes(octets(value['value'], length)).hex(' ') if int(value['value']) else NULL}"


VALUES = {
    "ravix_channel_info": channel_info_text,
    "ravix_ip_addr": ip_addr_text,
    "ravix_key": lambda value: "[SECRET]",
    "ravix_ssid": ssid_text,
    "ravix_tlv": tlv_text,
}


def field_value(fact, value):
    """The library's text of a value or of an array of values; without a fact what gdb or a printer shows."""
    kind = bare(value.type)
    is_array, is_pointer = kind.code == gdb.TYPE_CODE_ARRAY, kind.code == gdb.TYPE_CODE_PTR
    if isinstance(fact, str):  # whatever there is
        return fact
    if fact:
        return ", ".join(number_text(fact, number) for number in (octets(value) if is_array else [int(value)]))
    if is_array and bare(kind.target()).name == "char":
        return '"' + bytes(octets(value)).split(b"\0")[0].decode("utf-8", "backslashreplace") + '"'
    if is_array:
        return octets_text(value)
    if is_pointer and not int(value):
        return NULL
    return value.dereference() if is_pointer and bare(kind.target()).tag in RECORDS else value


class Record:
    """A record by its field list; a table as its elements, after whatever else it holds."""

    def __init__(self, value):
        self.value = value
        self.struct = bare(value.type)
        facts = RECORDS.get(self.struct.tag, {"fields": {}, "alternatives": {}})
        self.facts, self.alternatives = facts["fields"], facts["alternatives"]
        self.is_table = {"count", "data"} <= {field.name for field in self.struct.fields()}

    def to_string(self):
        if not self.is_table:
            return self.struct.tag + "_t"
        count = int(self.value["count"])
        lost = " without an array" if count and not int(self.value["data"]) else ""
        return f"{self.struct.tag}_t of {count}{lost}"

    def members(self):
        """The names of the fields, of two alternatives only the one that there is."""
        for field in self.struct.fields():
            if field.name:
                yield field.name
            else:
                for tag, names in self.alternatives.items():
                    if str(int(self.value[tag])) in names:
                        yield names[str(int(self.value[tag]))]

    def children(self):
        for name in self.members():
            if not (self.is_table and name in ("count", "data")):
                yield name, field_value(self.facts.get(name), self.value[name])
        if self.is_table and int(self.value["data"]):
            for i in range(int(self.value["count"])):
                yield f"[{i}]", field_value(self.facts.get("data"), self.value["data"][i])


def ravix_types(value):
    """The printer of a value by the name of its structure, or None."""
    tag = bare(value.type).tag or ""
    if str(value.type) in ("ravix_mac_t", "const ravix_mac_t"):
        return types.SimpleNamespace(to_string=lambda: octets_text(value))
    if tag in VALUES:
        return types.SimpleNamespace(to_string=lambda: VALUES[tag](value))
    if not tag.startswith("ravix_"):
        return None
    record = Record(value)
    return record if tag in RECORDS or record.is_table else None


gdb.printing.register_pretty_printer(None, ravix_types)
