#pragma once

#include <string>
#include <vector>

namespace parlexo::testing {

inline const std::string xmlHead = "<?xml version=\"1.0\"?>";
inline const std::string serverLine =
    R"(<server ip="10.0.0.7" port="8080" maxfilesize="2097152" maxfilesizemobile="51200">)";
inline const std::string versionLine = R"(<version product="client" version="2.24"/>)";

[[nodiscard]] inline std::string lines(const std::vector<std::string>& each, const char* end = "\n") {
  std::string text;
  for (const std::string& line : each) text.append(line).append(end);
  return text;
}

/// A locator document as the service's web site holds it.
inline const std::string locatorText = lines({xmlHead, serverLine, versionLine, "</server>"});

}  // namespace parlexo::testing
