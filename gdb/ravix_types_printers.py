"""Shows the records of libravix_types in gdb as the library's own texts do.

gdb loads this by itself with the library when both are installed where it looks; otherwise:

    (gdb) source <prefix>/share/ravix_types/gdb/ravix_types_printers.py

Which text shows which field is read from ravix_types_facts.json beside this file, which the library's build writes from
its field lists. "print/r" shows the plain structure, secrets included.
"""

import json
import os
import pathlib
import types

import gdb
import gdb.printing

FACTS = json.loads(pathlib.Path(__file__).resolve().with_name("ravix_types_facts.json").read_text("utf-8"))
RECORDS = FACTS["records"]
for facts in RECORDS.values():
    facts["fields"] = {name: FACTS["texts"][number] for name, number in facts["fields"].items()}


def bare(value_type):
    """The type without typedefs and qualifiers."""
    return value_type.strip_typedefs().unqualified()


def octets(value, count=None):
    """The first octets of an array, or all of them."""
    return bytes(int(value[i]) & 0xFF for i in range(bare(value.type).range()[1] + 1 if count is None else count))


def number_text(fact, number):
    """What the library shows for a number."""
    names, otherwise = fact["names"], fact["otherwise"]
    if otherwise == "flags":
        shown = "".join(name + " " for flag, name in names.items() if number & int(flag))
        unnamed = number & ((1 << 64) - 1) & ~sum(map(int, names))
        return f"[ {shown}]" + (f" and {unnamed:#x}" if unnamed else "")
    if str(number) in names:
        return names[str(number)] or "never"  # a log shows nothing
    if otherwise == "error":  # a negative errno value
        return os.strerror(-number)
    return otherwise.format(number, s=number // 1000, ms=number % 1000)


def octets_text(value):
    """A MAC address or UUID, told by its length."""
    text = octets(value).hex().upper()
    ends = (2, 4, 6, 8, 10, 12) if len(text) == 12 else (8, 12, 16, 20, 32)
    return (":" if len(text) == 12 else "-").join(text[a:b] for a, b in zip((0, *ends), ends))


def channel_info_text(value):
    """primary/centre/width in MHz/puncture map; the range of channels is left out."""
    primary, center = int(value["primary_freq"]) // 1000, int(value["center_freq"]) // 1000
    width = number_text(RECORDS["ravix_channel_info"]["fields"]["channel_width"], int(value["channel_width"]))
    mhz = width.split()[0] if width.endswith("MHz") else "INV"
    return f"{primary:4}/{center:4}/{mhz:>3}/{int(value['puncture_map']):04x}"


def ip_addr_text(value):
    octet, version = octets(value["addr"]), int(value["version"])
    if version == 2:
        return ":".join(f"{a << 8 | b:x}" for a, b in zip(octet[::2], octet[1::2]))
    return ".".join(str(o) for o in octet[:4]) if version == 1 else f"<Invalid IP version: {version}>"


def ssid_text(value):
    shown = octets(value["ssid"], min(int(value["len"]), 32))
    text = "".join(chr(o) if 0x20 <= o < 0x7F else "\n" for o in shown)
    dump = f"/[ {shown.hex(' ')} ]" if "\n" in text else ""
    return "'" + text.replace("\n", " ") + f"'{dump} (len={int(value['len'])})"


def tlv_text(value):
    length = int(value["len"])
    shown = octets(value["value"], length).hex(" ") if int(value["value"]) else "<nullptr>"
    return f"type {int(value['type'])}, length {length}" + (f": {shown}" if length else "")


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
        return '"' + octets(value).split(b"\0")[0].decode("utf-8", "backslashreplace") + '"'
    if is_array:
        return octets_text(value)
    if is_pointer and not int(value):
        return "<nullptr>"
    return value.dereference() if is_pointer and bare(kind.target()).tag in RECORDS else value


class Record:
    """A record by its field list; a table as its elements, after whatever else it holds."""

    def __init__(self, value):
        self.value, self.struct = value, bare(value.type)
        self.facts = RECORDS.get(self.struct.tag, {"fields": {}, "alternatives": {}})
        self.is_table = {"count", "data"} <= {field.name for field in self.struct.fields()}

    def to_string(self):
        if not self.is_table:
            return self.struct.tag + "_t"
        count = int(self.value["count"])
        lost = " without an array" if count and not int(self.value["data"]) else ""
        return f"{self.struct.tag}_t of {count}{lost}"

    def members(self):
        """The names of the fields, of two alternatives only the one that there is."""
        chosen = (names.get(str(int(self.value[tag]))) for tag, names in self.facts["alternatives"].items())
        return filter(None, (field.name or next(chosen) for field in self.struct.fields()))

    def children(self):
        for name in self.members():
            if not (self.is_table and name in ("count", "data")):
                yield name, field_value(self.facts["fields"].get(name), self.value[name])
        if self.is_table and int(self.value["data"]):
            for i in range(int(self.value["count"])):
                yield f"[{i}]", field_value(self.facts["fields"].get("data"), self.value["data"][i])


def ravix_types(value):
    """The printer of a value by the name of its structure, or None."""
    tag = bare(value.type).tag or ""
    text = octets_text if str(value.type) in ("ravix_mac_t", "const ravix_mac_t") else VALUES.get(tag)
    if text:
        return types.SimpleNamespace(to_string=lambda: text(value))
    record = Record(value) if tag.startswith("ravix_") else None
    return record if record and (tag in RECORDS or record.is_table) else None


gdb.printing.register_pretty_printer(None, ravix_types)
