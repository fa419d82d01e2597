"""usage: check_schema.py SOURCE BUILD RUN...

Checks the JSON Schema of a finished build: it is one, it accepts what the library writes for records of every kind and
what the examples print, it refuses what the library would not write, and it cannot be made of headers that leave
something out. What docs/json.md shows is what is written. RUN are the words of a command that runs programs of the build, or none."""

import copy
import json
import pathlib
import re
import subprocess
import sys

from jsonschema import Draft202012Validator

source, build = map(pathlib.Path, sys.argv[1:3])
run = sys.argv[3:]


def output_of(program, *arguments, **options):
    command = [*run, str(build / "bin" / program), *map(str, arguments)]
    return subprocess.run(command, capture_output=True, text=True, encoding="utf-8", **options)


schema = json.loads((build / "json/ravix_types.schema.json").read_text(encoding="utf-8"))
Draft202012Validator.check_schema(schema)
validators = {
    name: Draft202012Validator({**schema, "$ref": f"#/$defs/{name}"}) for name in schema["$defs"]
}
failures = []


def expect(definition, value, is_valid):
    if definition not in validators:
        failures.append(f"{definition} is not in the schema")
    elif validators[definition].is_valid(value) != is_valid:
        wrong = next(validators[definition].iter_errors(value), None)
        failures.append(f"{definition}: {wrong.message if is_valid else 'accepts ' + json.dumps(value)}")


# ---- what the library writes

parts = []  # every object within what was written


def objects_in(value):
    if isinstance(value, dict):
        yield value
    for inner in value.values() if isinstance(value, dict) else value if isinstance(value, list) else []:
        yield from objects_in(inner)


fullest = {}  # by definition: the longest that was written
for line in output_of("schema_records", check=True).stdout.splitlines():
    definition, text = line.split(" ", 1)
    value = json.loads(text)
    expect(definition, value, True)
    parts.extend(objects_in(value))
    fullest[definition] = max(fullest.get(definition, (0,)), (len(text), text))
written = {definition: json.loads(text) for definition, (_, text) in fullest.items()}
records = {name for name in schema["$defs"] if name.startswith(("ravix_", "radiod_"))}
failures += [f"{name} is never written" for name in sorted(records - written.keys())]

if (build / "bin/scan_report").exists():
    scan = output_of("scan_report", "--json", check=True).stdout
    expect("ravix_scan_results", json.loads(scan), True)
    change = json.loads(output_of("config_diff", "--json", check=True).stdout)
    for role in [*change["before"]["roles"].values(), *change["after"]["roles"].values()]:
        expect("ravix_cfg_role_static", role, True)
    for role in change["changes"]["roles"].values():
        expect("ravix_cfg_role_static_diff", role, True)

    # ---- what the page on JSON shows: objects, single members, and a program

    parts.extend([*objects_in(json.loads(scan)), *objects_in(change)])
    specimens = (source / "tests/data/json.txt").read_text(encoding="utf-8")
    for specimen in re.split(r"^---.*$", specimens, flags=re.M)[1:]:
        parts.extend(objects_in(json.loads(specimen)))
    page = (source / "docs/json.md").read_text(encoding="utf-8")
    shown = re.findall(r"```json\n(.*?)```", page, re.S)
    shown += [f"{{{member}}}" for member in re.findall(r'`("\w+": .*?)`', page)]
    shown += re.findall(r"`(\{.+?\})`", page)
    for example in map(json.loads, shown):
        if not any(all(part.get(key, failures) == value for key, value in example.items()) for part in parts):
            failures.append(f"docs/json.md shows what is not written: {json.dumps(example)}")
    program = re.search(r"```python\n(.*?)```", page, re.S)[1]
    program = re.sub(r'"/usr/.*?"', repr(str(build / "json/ravix_types.schema.json")), program)
    for text, is_valid in [(scan, True), ("[]", False)]:
        done = subprocess.run([sys.executable, "-c", program], input=text, capture_output=True, text=True, encoding="utf-8")
        if (done.returncode == 0) != is_valid or done.stdout:
            failures.append(f"docs/json.md has a program that says: {done.stdout + done.stderr}")

# ---- what it would not write: a member with another value, which is right or wrong

NO, YES = False, True
for definition, member, value, is_valid in [
    ("ravix_channel_info", "channel_width", "80 MHz", YES),
    ("ravix_channel_info", "channel_width", 4, NO),  # has a name
    ("ravix_channel_info", "channel_width", 3, YES),  # has none
    ("ravix_channel_info", "channel_width", 65536, NO),
    ("ravix_channel_info", "channel_width", "80", NO),
    ("ravix_channel_info", "primary_freq", None, YES),
    ("ravix_channel_info", "primary_freq", 0, NO),  # is null
    ("ravix_channel_info", "primary_freq", "5180 MHz", NO),
    ("ravix_channel_info", "puncture_map", None, NO),
    ("ravix_scan_entry", "rssi", -50, YES),
    ("ravix_scan_entry", "rssi", 32767, NO),  # is null
    ("ravix_scan_entry", "rssi", -32769, NO),
    ("ravix_scan_entry", "bssid", "02:00:5E:10:21:01", YES),
    ("ravix_scan_entry", "bssid", "02:00:5e:10:21:01", NO),
    ("ravix_scan_entry", "bssid", "02:00:5E:10:21", NO),
    ("ravix_scan_entry", "wlan_mode", ["11A", "0x80"], YES),
    ("ravix_scan_entry", "wlan_mode", ["11A", "11A"], NO),
    ("ravix_scan_entry", "wlan_mode", ["11C"], NO),
    ("ravix_scan_entry", "wlan_mode", 1, NO),
    ("ravix_scan_entry", "ssid", {"hex": "00ff"}, YES),
    ("ravix_scan_entry", "ssid", {"hex": "0"}, NO),
    ("ravix_scan_entry", "ssid", None, NO),
    ("ravix_scan_entry", "note", "", NO),
    ("ravix_radio_airtime_entry", "rxc", None, YES),
    ("ravix_event_green_ap", "enabled", 1, NO),
    ("ravix_event_green_ap", "radio_id", "ALL", YES),
    ("ravix_event_green_ap", "radio_id", -1, NO),  # is "ALL"
    ("ravix_event_green_ap", "radio_id", -4, YES),
    ("radiod_hal_event_scan_fail", "status", -22, YES),
    ("radiod_hal_event_scan_fail", "status", 0, NO),
    ("radiod_hal_event_hw_init", "hal_context", "0xbeef", YES),
    ("radiod_hal_event_hw_init", "hal_context", 48879, NO),
    ("ravix_station_history_entry", "time_connect", 2**63 - 1, NO),  # is null
    ("ravix_tlv", "value", "00", NO),  # is "hex"
    ("ravix_cfg_radius_server", "addr", "192.0.2.10", YES),
    ("ravix_cfg_radius_server", "addr", "2001:db8:0:0:0:0:0:53", YES),
    ("ravix_cfg_radius_server", "addr", "192.0.2", NO),
    ("ravix_cfg_radius_server", "secret", "tide and time", NO),
    ("ravix_cfg_wlan_security", "key", "tide and time", NO),
    ("ravix_cfg_security_extended", "key_mgmt", ["PSK", "SAE"], NO),  # of three
    ("ravix_cfg_role_dynamic", "cfg_mld", None, YES),
    ("ravix_cfg_role_dynamic", "rsn_element", None, NO),
    ("ravix_cfg_role_static_diff", "config_ap", None, YES),  # has become another
    ("ravix_cfg_role_static_diff", "ssid", "", NO),
]:
    changed = copy.deepcopy(written[definition])
    expect(definition, changed, True)
    changed[member] = value
    expect(definition, changed, is_valid)
for definition, whole in written.items():
    if isinstance(whole, dict) and definition in records and not definition.endswith("_diff"):
        for member in schema["$defs"][definition].get("required", []):
            expect(definition, {key: value for key, value in whole.items() if key != member}, False)
role = written["ravix_cfg_role_static"]
expect("ravix_cfg_role_static", {**role, "config_ap": None, "config_sta": None}, False)

# ---- what the headers must say

headers = sorted((source / "include").glob("*.h"))
broken = build / "json/undocumented.h"
for undocumented, what in [
    ("/** Energy saving of a radio was switched. Owns nothing. */", "ravix_event_green_ap"),
    ("/**< Present rate to the station in kbit/s. */", "ravix_station_entry.rate_tx_current"),
    ("See ravix_str_wlan_mode()", "wlan_mode"),
]:
    others = []
    for header in headers:
        text = header.read_text(encoding="utf-8")
        if undocumented in text:
            broken.write_text(text.replace(undocumented, ""), encoding="utf-8")
        else:
            others.append(header)
    done = output_of("json_schema", "1.0", broken, *others)
    if done.returncode == 0 or f"no comment tells what {what} is" not in done.stderr:
        failures.append(f"makes a schema though nothing is said of {what}: {done.stderr}")

print("\n".join(failures) or f"{len(records)} definitions accept what is written, and refuse what is not")
sys.exit(1 if failures else 0)
