// What a helper says about its control, and the picture that comes of it.
#pragma once

#include "nc/controller.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace gpi::nc {

/// The addresses that a control answers, and what it answers.
struct Picture {
    Extent extent{};
    std::map<std::tuple<int32_t, int32_t, int32_t>, double> values; ///< by area, number, index
    std::map<int32_t, int32_t> system;
    std::map<std::pair<int32_t, int32_t>, std::string> texts; ///< by string and number
};

/// Reads a helper's lines:
///
///     extent AXES SPINDLES TOOLS FEED TRAVEL     how far its addresses go
///     value AREA NUMBER INDEX VALUE              a value that changed
///     system NUMBER VALUE
///     text STRING NUMBER REST-OF-LINE
///     show                                       all of these count now
///     alarm NUMBER REST-OF-LINE
///     reply REQUEST RESULT                       1, or one of G_NC_UNKNOWN and so on
///     lost REST-OF-LINE                          the control does not answer, and why
class ReportReader {
  public:
    enum class Kind {
        Part,  ///< something that counts from the next Show
        Show,  ///< the picture is whole
        Alarm, ///< number, text
        Reply, ///< number, result
        Lost,  ///< text
        Nonsense,
    };

    struct Report {
        Kind kind = Kind::Nonsense;
        int32_t number = 0;
        int32_t result = 0;
        std::string_view text = {};
    };

    Report read(std::string_view line);

    /// All that was said since the last time it was lost.
    const Picture& picture() const { return picture_; }

  private:
    Report part(std::string_view kind, std::string_view rest);

    Picture picture_;
};

} // namespace gpi::nc
