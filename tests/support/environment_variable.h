// A variable of this process's environment, for one test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace vorlane {

class EnvironmentVariable {
 public:
  // Not set at all without a value.
  EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* old = std::getenv(name)) {
      old_ = old;
    }
    Set(value);
  }
  ~EnvironmentVariable() { Set(old_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  void Set(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
  }

  std::string name_;
  std::optional<std::string> old_;
};

}  // namespace vorlane
