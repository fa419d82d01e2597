// Takes a scan, as the text that iw prints, through the whole road of a request between two parties of the interface:
// one asks for a scan and for its results, the other one serves it. Ends with the listing of what was found.
#include "iw_scan.hpp"
#include "standard_output.hpp"
#include "text_input.hpp"

#include "ravix_types_api_request.h"
#include "ravix_types_enums.h"
#include "ravix_types_handles.hpp"
#include "ravix_types_json.hpp"
#include "ravix_types_printers.hpp"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char *program = "scan_report";
constexpr const char *sample_name = "iw_scan_sample.txt";
constexpr int32_t radio_id = 1;

constexpr const char *help = R"(usage: scan_report [OPTION...] [FILE]

Reads what "iw dev <interface> scan" prints from FILE, from standard input if FILE is "-", or from the sample that
comes with the program, and lists the networks as records of the scan interface.

  --freq MHZ[,MHZ...]   ask for networks on these primary channels only (may be repeated)
  --ssid NAME           ask for networks of this name only (may be repeated)
  --hide-ssid           leave the names out of the listing
  --json                print for programs: the results as JSON, in one line
  --verbose             print the request and the status of the response too
  -h, --help            this text

Exit status: 0 if all was read; 1 if something could not be read, which is said on standard error with its line (all
that could be read is listed); 2 for a wrong argument.
)";

struct options {
  std::string input;
  std::vector<uint32_t> frequencies; // kHz
  std::vector<ravix_ssid_t> ssids;
  bool hide_ssid = false;
  bool as_json = false;
  bool verbose = false;
};

// The party that asks: for all channels, unless it is told which.
ravix::handle<ravix_start_scan_request_t> make_request(const options &wanted) {
  auto request = ravix::create<ravix_start_scan_request_t>();
  if (!request) {
    return nullptr;
  }
  request->radio_id = radio_id;
  request->scan_parameter = ravix_types_scan_parameter_create();
  if (request->scan_parameter == nullptr) {
    return nullptr;
  }
  auto frequencies = wanted.frequencies;
  for (uint32_t khz = 2412000; wanted.frequencies.empty() && khz <= 7115000; khz += 1000) {
    if (ravix_frequency_is_primary(khz)) {
      frequencies.push_back(khz);
    }
  }
  for (const auto frequency : frequencies) {
    if (ravix_types_frequency_table_add_entry(&request->scan_parameter->frequencies, &frequency) != 0) {
      return nullptr;
    }
  }
  for (const auto &ssid : wanted.ssids) {
    if (ravix_types_ssid_table_add_entry(&request->scan_parameter->ssids, &ssid) != 0) {
      return nullptr;
    }
  }
  return request;
}

// The party that serves: its radio is the text of a scan.
class server {
public:
  explicit server(iw::scan found) : found_(std::move(found)) {}

  // The request belongs to the caller, so a copy is kept.
  ravix_start_scan_response_t start_scan(const ravix_start_scan_request_t &request) {
    request_.reset(ravix_types_start_scan_request_clone(&request));
    scan_time_ =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
    return {request_ ? RAVIX_STATUS_SUCCESS : RAVIX_STATUS_FAIL_GENERAL};
  }

  // The response belongs to the caller; null if memory is exhausted.
  ravix::handle<ravix_get_scan_results_response_t> scan_results(const ravix_get_scan_results_request_t &request) const {
    auto response = ravix::create<ravix_get_scan_results_response_t>();
    if (!response) {
      return nullptr;
    }
    if (!request_ || request.radio_id != request_->radio_id) {
      response->status = RAVIX_STATUS_FAIL_NOT_APPLICABLE;
      return response;
    }
    response->scan_results = ravix_types_scan_results_create();
    if (response->scan_results == nullptr) {
      return nullptr;
    }
    auto &results = *response->scan_results;
    results.scan_time = scan_time_.count();
    for (const auto &channel : found_.load) {
      if (is_wanted(channel.frequency) &&
          ravix_types_noisefloor_table_add_entry(&results.noisefloor_table, &channel) != 0) {
        return nullptr;
      }
    }
    for (const auto &network : found_.networks) {
      if ((!request.selective_scan_results || is_wanted(network)) &&
          ravix_types_scan_table_add_entry(&results.scan_table, &network) != 0) {
        return nullptr;
      }
    }
    return response;
  }

private:
  bool is_wanted(uint32_t frequency) const {
    const auto &wanted = request_->scan_parameter->frequencies;
    return ravix_types_frequency_table_contains_entry(&wanted, &frequency);
  }
  bool is_wanted(const ravix_scan_entry_t &network) const {
    const auto &ssids = request_->scan_parameter->ssids;
    return is_wanted(network.channel_info.primary_freq) &&
           (ssids.count == 0 || ravix_types_ssid_table_contains_entry(&ssids, &network.ssid));
  }

  iw::scan found_;
  ravix::handle<ravix_start_scan_request_t> request_;
  std::chrono::milliseconds scan_time_{};
};

int wrong_argument(const std::string &message) {
  std::cerr << program << ": " << message << " (see --help)\n";
  return 2;
}

// Returns an exit status if the program ends here.
std::optional<int> read_arguments(const std::vector<std::string> &arguments, options &out) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto &argument = arguments[i];
    if (argument == "-h" || argument == "--help") {
      std::cout << help;
      return 0;
    }
    if (argument == "--hide-ssid") {
      out.hide_ssid = true;
    } else if (argument == "--json") {
      out.as_json = true;
    } else if (argument == "--verbose") {
      out.verbose = true;
    } else if (argument == "--freq" || argument == "--ssid") {
      if (++i == arguments.size()) {
        return wrong_argument(argument + " needs a value");
      }
      const std::string_view value = arguments[i];
      if (argument == "--ssid") {
        ravix_ssid_t ssid{};
        if (value.size() > RAVIX_MAX_SSID_LEN) {
          return wrong_argument("an SSID has at most " + std::to_string(RAVIX_MAX_SSID_LEN) + " octets");
        }
        ssid.len = static_cast<uint8_t>(value.size());
        std::memcpy(ssid.ssid, value.data(), value.size());
        out.ssids.push_back(ssid);
        continue;
      }
      for (const auto item : text::comma_separated(value)) {
        const auto khz = text::megahertz(item);
        if (!khz || !ravix_frequency_is_primary(*khz)) {
          return wrong_argument("no channel at frequency " + text::quote(item) + " (in MHz)");
        }
        out.frequencies.push_back(*khz);
      }
    } else if (argument.size() > 1 && argument[0] == '-') {
      return wrong_argument("unknown option " + text::quote(argument));
    } else if (out.input.empty()) {
      out.input = argument;
    } else {
      return wrong_argument("more than one file");
    }
  }
  if (out.as_json && out.hide_ssid) {
    return wrong_argument("--json tells the names, so it does not go with --hide-ssid");
  }
  if (out.input.empty()) {
    out.input = text::sample(sample_name);
  }
  return std::nullopt;
}

int run(const options &wanted) {
  std::string content;
  text::problems problems;
  if (const auto reason = text::read(wanted.input, content)) {
    problems.error(0, "cannot be read: " + *reason);
    problems.print(program, wanted.input);
    return 1;
  }
  server radio(iw::read_scan(content, problems));
  problems.print(program, wanted.input);

  const auto request = make_request(wanted);
  if (!request) {
    return 1;
  }
  const auto started = radio.start_scan(*request);
  const auto print_record = [&](const auto &record) {
    if (wanted.as_json) {
      print_json(std::cout, record);
    } else {
      std::cout << record;
    }
    std::cout << '\n';
  };
  if (wanted.verbose) {
    print_record(*request);
    print_record(started);
  }
  const auto response = radio.scan_results({radio_id, true});
  if (!response || response->scan_results == nullptr) {
    return 1;
  }
  if (wanted.hide_ssid) {
    print_scan_results(std::cout, *response->scan_results, true);
    std::cout << '\n';
  } else {
    print_record(*response->scan_results);
  }
  return problems.has_errors() ? 1 : 0;
}

} // namespace

int main(int argc, char **argv) {
  options wanted;
  const auto status = read_arguments({argv + 1, argv + argc}, wanted);
  return end_of_output(program, status ? *status : run(wanted));
}
