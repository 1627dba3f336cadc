#include "net/remote_file.h"

#include "net/error.h"

#include <algorithm>
#include <limits>

namespace gpi {
namespace {

constexpr size_t kMostRecorded = 16 << 20;
constexpr int64_t kMostPosition = std::numeric_limits<int32_t>::max();

/// The end of contents.
struct NoSource : Source {
    size_t read(uint8_t* /*buffer*/, size_t /*size*/) override { return 0; }
    size_t available() override { return 0; }
    bool good() const override { return true; }
};

} // namespace

std::string RemoteFile::key() const {
    const Options options = this->options();
    return asked_ + '\n' + options.user + '\n' + options.password;
}

void RemoteFile::begin(std::unique_ptr<Source> source, int64_t size) {
    source_ = std::move(source);
    size_ = size;
    begun_ = true;
}

void RemoteFile::begin(std::shared_ptr<const Kept> kept) {
    kept_ = std::move(kept);
    recorded_ = kept_->bytes;
    begin(std::make_unique<KeptSource>(kept_, 0), static_cast<int64_t>(recorded_.size()));
}

void RemoteFile::requireBegun() const {
    require(begun_, G_NET_STATE);
}

int32_t RemoteFile::read(void* buffer, int32_t size) {
    require(size >= 0 && (buffer != nullptr || size == 0));
    requireBegun();
    require(source_ != nullptr, G_NET_BROKEN); // a change of position failed
    auto* const bytes = static_cast<uint8_t*>(buffer);
    const size_t count = source_->read(bytes, static_cast<size_t>(size));
    record(bytes, count);
    position_ += static_cast<int64_t>(count);
    return static_cast<int32_t>(count);
}

void RemoteFile::write(const void* buffer, int32_t size, int32_t* written) {
    int32_t ignored = 0;
    int32_t& done = written != nullptr ? *written : ignored;
    done = 0;
    require(size >= 0 && (buffer != nullptr || size == 0));
    require(sending != nullptr, G_NET_STATE);
    done = static_cast<int32_t>(
        sending->send({static_cast<const char*>(buffer), static_cast<size_t>(size)}));
    sending->requireGood();
    require(done == size, G_NET_STATE); // the server has answered already
}

int32_t RemoteFile::available() {
    requireBegun();
    require(source_ != nullptr, G_NET_BROKEN);
    return static_cast<int32_t>(std::min(source_->available(), static_cast<size_t>(kMostPosition)));
}

/// Keeps what was read behind what is recorded.
void RemoteFile::record(const uint8_t* bytes, size_t count) {
    const auto known = static_cast<int64_t>(recorded_.size()) - position_;
    if (known < 0 || known >= static_cast<int64_t>(count) || overfull_) {
        return;
    }
    const size_t fresh = count - static_cast<size_t>(known);
    overfull_ = recorded_.size() + fresh > kMostRecorded;
    if (overfull_) {
        recorded_ = std::string();
    } else {
        recorded_.append(reinterpret_cast<const char*>(bytes) + known, fresh);
    }
}

std::unique_ptr<Source> RemoteFile::openAt(int64_t position) {
    if (kept_ != nullptr) {
        return std::make_unique<KeptSource>(kept_, static_cast<size_t>(position));
    }
    return position == size_ ? std::make_unique<NoSource>() : reopen(position);
}

int32_t RemoteFile::seek(int32_t offset, int32_t origin) {
    require(origin >= G_SEEK_START && origin <= G_SEEK_END);
    requireBegun();
    require(origin != G_SEEK_END || size_ >= 0, G_NET_UNSUPPORTED);
    const int64_t base = origin == G_SEEK_START ? 0 : (origin == G_SEEK_END ? size_ : position_);
    const int64_t position = base + offset;
    require(position >= 0 && position <= kMostPosition && (size_ < 0 || position <= size_));
    if (position != position_ || source_ == nullptr || !source_->good()) {
        source_.reset(); // its connection may be needed
        source_ = openAt(position);
        position_ = position;
    }
    return static_cast<int32_t>(position);
}

std::shared_ptr<const Kept> RemoteFile::keep() const {
    requireBegun();
    require(!overfull_, G_NET_NO_MEMORY);
    auto kept = std::make_shared<Kept>();
    kept->key = key();
    kept->bytes = recorded_;
    kept->head = headToKeep();
    return kept;
}

} // namespace gpi
