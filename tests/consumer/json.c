/* Writes a record as JSON, compact and indented, into an array that may be too small. Built as C11 and, with the same
 * text, as C++20. */
#include <ravix_types_json.h>

#include <stdio.h>
#include <string.h>

struct text {
  size_t length;
  char octets[256];
};

static int append(const char *piece, size_t length, void *context) {
  struct text *text = (struct text *)context;
  if (length >= sizeof text->octets - text->length) {
    return -1;
  }
  memcpy(text->octets + text->length, piece, length);
  text->length += length;
  text->octets[text->length] = 0;
  return 0;
}

int main(void) {
  const ravix_event_green_ap_t event = {.radio_id = 2, .enabled = true};
  struct text compact = {0, ""};
  struct text lines = {0, ""};
  struct text full = {sizeof full.octets - 10, ""};
  ravix_json_indent_t indent = {append, &lines, 1, 0, false, false, false};
  const bool holds = ravix_types_event_green_ap_to_json(&event, append, &compact) == 0 &&
                     ravix_types_event_green_ap_to_json(&event, ravix_json_indent, &indent) == 0 &&
                     ravix_types_event_green_ap_to_json(&event, append, &full) == -1 &&
                     strcmp(compact.octets, "{\"radio_id\":2,\"enabled\":true}") == 0 &&
                     strcmp(lines.octets, "{\n \"radio_id\": 2,\n \"enabled\": true\n}") == 0;
  printf("%s\n%s\n", compact.octets, lines.octets);
  return holds ? 0 : 1;
}
