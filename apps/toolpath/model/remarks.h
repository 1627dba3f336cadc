// What the reader has to say about a program: each thing once, at the line where it came first.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace toolpath {

struct Remark {
    int32_t line; ///< of the program, from 1
    std::string text;
};

class Remarks {
  public:
    /// Keeps a remark unless the same text was kept before.
    void add(int32_t line, const std::string& text) {
        if (said_.insert(text).second) {
            list_.push_back({line, text});
        }
    }

    const std::vector<Remark>& list() const { return list_; }

  private:
    std::set<std::string> said_;
    std::vector<Remark> list_;
};

} // namespace toolpath
