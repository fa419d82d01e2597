#include "band_picture.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

namespace picture {

namespace {

// Lengths in CSS pixels. 400 is what a phone shows without zooming.
constexpr int width = 400;
constexpr int margin = 10;
constexpr int columns = 8; // 160 MHz
constexpr int box_width = 45;
constexpr int box_step = (width - 2 * margin) / columns;
constexpr int box_height = 50;
constexpr int bracket_height = 26;
constexpr int row_step = bracket_height + box_height + 8;
constexpr int legend_step = 26;
constexpr int legend_columns = 2;

constexpr uint32_t marks = RAVIX_CHANNEL_STATE_ACTIVE | RAVIX_CHANNEL_STATE_PUNCTURED |
                           RAVIX_CHANNEL_STATE_RADAR_FOUND | RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND;

// How a box looks. What tells the looks apart are lightness, hatching and words, so that no colour is needed.
struct look {
  const char *fill;
  const char *text_color;
  const char *word; // on top of the box
  const char *meaning;
};

constexpr look in_use{"#1f4e79", "#ffffff", "", "in use"};
constexpr look primary{"#1f4e79", "#ffffff", "PRI", "in use, primary channel"};
constexpr look punctured{"url(#punctured)", "#000000", "PUNCT.", "punctured"};
constexpr look radar{"url(#radar)", "#000000", "RADAR", "radar found"};
constexpr look interference{"url(#interference)", "#000000", "INTERF.", "interference found"};
constexpr look no_ir{"#e6e6e6", "#000000", "NO IR", "no start here (no IR)"};
constexpr look disabled{"#ffffff", "#767676", "", "disabled"};
constexpr look dfs{"#ffffff", "#000000", "DFS", "radar detection (DFS)"};
constexpr look plain{"#ffffff", "#000000", "", "not in use"};

struct box {
  int x, y;
  uint32_t frequency, number;
  const look *shown;
  bool is_dfs;
};

const look &look_of(const iw::phy_channel &channel, const ravix_channel_entry_t *entry) {
  const uint32_t state = entry == nullptr ? 0 : entry->state & (marks | RAVIX_CHANNEL_STATE_PRI_CHAN);
  if (entry == nullptr) {
    return disabled;
  }
  if ((state & RAVIX_CHANNEL_STATE_PRI_CHAN) != 0) {
    return primary;
  }
  if ((state & RAVIX_CHANNEL_STATE_ACTIVE) != 0) {
    return in_use;
  }
  if ((state & RAVIX_CHANNEL_STATE_PUNCTURED) != 0) {
    return punctured;
  }
  if ((state & RAVIX_CHANNEL_STATE_RADAR_FOUND) != 0) {
    return radar;
  }
  if ((state & RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND) != 0) {
    return interference;
  }
  return channel.has_no_ir ? no_ir : channel.has_radar_detection ? dfs : plain;
}

std::string escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    out += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : c < ' ' || c > '~' ? "?" : std::string(1, c);
  }
  return out;
}

class canvas {
public:
  canvas &text(int x, int y, int size, const char *color, std::string_view content, std::string_view more = "") {
    out_ << "<text x=\"" << x << "\" y=\"" << y << "\" font-size=\"" << size << "\" fill=\"" << color << "\" " << more
         << '>' << escaped(content) << "</text>\n";
    return *this;
  }
  void line(int x1, int y1, int x2, int y2, const char *more) {
    out_ << "<path d=\"M" << x1 << ' ' << y1 << 'L' << x2 << ' ' << y2 << "\" " << more << "/>\n";
  }
  // The frame and filling of a channel's box.
  void frame(int x, int y, int w, int h, const look &shown, bool is_dfs) {
    out_ << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << w << "\" height=\"" << h << "\" fill=\""
         << shown.fill << "\" stroke=\"" << (&shown == &disabled ? "#a0a0a0" : "#000000") << "\" stroke-width=\""
         << (is_dfs ? "2\" stroke-dasharray=\"5 3\"" : "1\"") << "/>\n";
    if (&shown == &primary) {
      out_ << "<rect x=\"" << x + 3 << "\" y=\"" << y + 3 << "\" width=\"" << w - 6 << "\" height=\"" << h - 6
           << "\" fill=\"none\" stroke=\"#ffffff\" stroke-width=\"2\"/>\n";
    } else if (&shown == &disabled) {
      line(x, y, x + w, y + h, "stroke=\"#a0a0a0\"");
      line(x, y + h, x + w, y, "stroke=\"#a0a0a0\"");
    }
  }
  std::string finish(int height) const {
    std::ostringstream whole;
    whole << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << width << ' ' << height << "\" width=\""
          << width << "\" height=\"" << height << "\" font-family=\"Helvetica, Arial, sans-serif\">\n"
          << R"svg(<defs>
<pattern id="punctured" width="8" height="8" patternUnits="userSpaceOnUse" patternTransform="rotate(45)">
<rect width="8" height="8" fill="#ffffff"/><rect width="3" height="8" fill="#a9bfd4"/></pattern>
<pattern id="radar" width="8" height="8" patternUnits="userSpaceOnUse">
<rect width="8" height="8" fill="#ffffff"/><rect width="8" height="3" fill="#f0b59a"/></pattern>
<pattern id="interference" width="7" height="7" patternUnits="userSpaceOnUse">
<rect width="7" height="7" fill="#ffffff"/><circle cx="2" cy="2" r="1.5" fill="#c9a82c"/></pattern>
</defs>
)svg"
          << "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
          << out_.str() << "</svg>\n";
    return whole.str();
  }

private:
  std::ostringstream out_;
};

// Places the boxes: a new row after 160 MHz and after a gap, so that the wide channels of 5 and 6 GHz begin at its
// left.
std::vector<box> place(const iw::phy_band &band, const ravix_channel_list_t &list, int top) {
  const uint32_t largest_step = 20000;
  std::vector<box> boxes;
  int column = 0;
  int y = top;
  for (const auto &channel : band.channels) {
    if (!boxes.empty()) {
      const auto before = boxes.back().frequency;
      const bool is_gap = channel.frequency < before || channel.frequency - before > largest_step;
      column = is_gap || column + 1 == columns ? 0 : column + 1;
      y += column == 0 ? row_step : 0;
    }
    const ravix_channel_entry_t *const begin = list.data;
    const auto *const end = begin + list.count;
    const auto *const entry = std::find_if(begin, end, [&](const auto &e) { return e.frequency == channel.frequency; });
    boxes.push_back({margin + column * box_step, y + bracket_height, channel.frequency, channel.number,
                     &look_of(channel, entry == end || channel.is_disabled ? nullptr : entry),
                     channel.has_radar_detection});
  }
  return boxes;
}

void draw_box(canvas &out, const box &b) {
  const auto &shown = *b.shown;
  out.frame(b.x, b.y, box_width, box_height, shown, b.is_dfs);
  const int middle = b.x + box_width / 2;
  const auto *const word = *shown.word == '\0' && b.is_dfs ? "DFS" : shown.word;
  // Text on a hatched box stands on a light edge of its own.
  const bool is_light = shown.text_color != in_use.text_color;
  const std::string style = std::string("text-anchor=\"middle\"") +
                            (is_light ? " paint-order=\"stroke\" stroke=\"#ffffff\" stroke-width=\"3\"" : "");
  const std::string bold = style + " font-weight=\"bold\"";
  const auto channel = std::to_string(b.number);
  out.text(middle, b.y + 14, 10, shown.text_color, word, bold);
  out.text(middle, b.y + 31, 17, shown.text_color, channel, bold);
  out.text(middle, b.y + 45, 12, shown.text_color, std::to_string(b.frequency / 1000), style);
}

// A bracket over all boxes of a channel, one piece per row, with ends where the channel ends.
void draw_bracket(canvas &out, const std::vector<box> &boxes, const ravix_channel_info_t &found) {
  const auto half = ravix_channel_width_to_frequency(found.channel_width) / 2;
  std::vector<const box *> inside;
  for (const auto &b : boxes) {
    if (b.frequency + half >= found.center_freq && b.frequency <= found.center_freq + half) {
      inside.push_back(&b);
    }
  }
  constexpr const char *pen = "stroke=\"#000000\" stroke-width=\"3\" stroke-linecap=\"square\"";
  for (std::size_t i = 0; i < inside.size(); ++i) {
    const auto &b = *inside[i];
    const int y = b.y - 9;
    const bool is_first = i == 0;
    const bool is_last = i + 1 == inside.size();
    const bool goes_on = !is_last && inside[i + 1]->y == b.y;
    out.line(b.x, y, goes_on ? inside[i + 1]->x : b.x + box_width, y, pen);
    if (is_first) {
      out.line(b.x, y, b.x, y + 6, pen);
      const bool is_left = b.x < width / 2;
      out.text(is_left ? b.x : b.x + box_width, y - 5, 12, "#000000",
               std::string(ravix_str_channel_width(found.channel_width)) + " around " +
                   std::to_string(found.center_freq / 1000) + " MHz",
               is_left ? "font-weight=\"bold\"" : "font-weight=\"bold\" text-anchor=\"end\"");
    }
    if (is_last) {
      out.line(b.x + box_width, y, b.x + box_width, y + 6, pen);
    }
  }
}

// Explains the looks that occur. Returns where it ends.
int draw_legend(canvas &out, const std::vector<box> &boxes, int top) {
  int count = 0;
  for (const auto *const shown :
       {&plain, &dfs, &no_ir, &disabled, &primary, &in_use, &punctured, &radar, &interference}) {
    const bool occurs = std::any_of(boxes.begin(), boxes.end(),
                                    [&](const box &b) { return b.shown == shown || (shown == &dfs && b.is_dfs); });
    if (occurs) {
      const int x = margin + count % legend_columns * (width / legend_columns);
      const int y = top + count / legend_columns * legend_step;
      out.frame(x, y, 28, 18, *shown, shown == &dfs);
      out.text(x + 36, y + 14, 13, "#000000", shown->meaning);
      ++count;
    }
  }
  return top + (count + legend_columns - 1) / legend_columns * legend_step;
}

} // namespace

std::string draw_band(const std::string &title, const std::string &subtitle, const iw::phy_band &band,
                      const ravix_channel_list_t &list, const ravix_channel_info_t *found) {
  canvas out;
  out.text(margin, 26, 18, "#000000", title, "font-weight=\"bold\"");
  out.text(margin, 45, 13, "#000000", subtitle);
  const auto boxes = place(band, list, 54);
  for (const auto &b : boxes) {
    draw_box(out, b);
  }
  if (found != nullptr) {
    draw_bracket(out, boxes, *found);
  }
  const int end = draw_legend(out, boxes, (boxes.empty() ? 54 : boxes.back().y + box_height) + 18);
  return out.finish(end + 4);
}

} // namespace picture
