// Programs of typed memory calls beside a map of byte strings: what is read is what was written,
// and nothing beside a block is touched.
#include "input.h"
#include "require.h"

#include "support/recording_platform.h"

#include <quarlo/typed_memory.h>

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstring>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace quarlo::fuzz {
namespace {

using namespace quarlo::test;

constexpr int kMostCalls = 128;

class Program {
  public:
    explicit Program(Input& in) : in_(in) { platform_.limitBlocks(1 << 16); }
    ~Program() {
        for (const auto& [name, block] : blocks_) {
            GMGMemDelete(block.data);
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void run() {
        constexpr void (Program::*kCalls[])() = {&Program::create,
                                                 &Program::create,
                                                 &Program::remove,
                                                 &Program::select,
                                                 &Program::setString,
                                                 &Program::failMemory,
                                                 &Program::set<int8_t, GMGMemSetChar>,
                                                 &Program::get<int8_t, GMGMemGetChar>,
                                                 &Program::set<int16_t, GMGMemSetShort>,
                                                 &Program::get<int16_t, GMGMemGetShort>,
                                                 &Program::set<int32_t, GMGMemSetLong>,
                                                 &Program::get<int32_t, GMGMemGetLong>,
                                                 &Program::set<double, GMGMemSetDouble>,
                                                 &Program::get<double, GMGMemGetDouble>};
        for (int left = kMostCalls; left > 0 && !in_.isUsedUp(); --left) {
            (this->*kCalls[in_.below(std::size(kCalls))])();
        }
        for (const auto& [name, block] : blocks_) {
            require(std::memcmp(block.data, block.bytes.data(), block.bytes.size()) == 0,
                    "a block holds something else than what was written");
        }
    }

  private:
    struct Block {
        void* data;
        std::vector<uint8_t> bytes;
    };
    using Blocks = std::map<std::u16string, Block>;

    std::u16string name() {
        return std::u16string(static_cast<size_t>(in_.below(18)),
                              static_cast<char16_t>(u'A' + in_.below(4)));
    }

    /// Any block, or none.
    Block* pick() {
        if (blocks_.empty() || in_.below(16) == 0) {
            return nullptr;
        }
        auto chosen = blocks_.begin();
        std::advance(chosen, in_.below(static_cast<int32_t>(blocks_.size())));
        return &chosen->second;
    }

    uint32_t offset() { return in_.below(4) != 0 ? in_.byte() : in_.pixel(); }

    void create() {
        const std::u16string wanted = name();
        const int32_t size = in_.below(4) != 0 ? in_.byte() : static_cast<int32_t>(in_.pixel());
        void* const data = GMGMemCreate(wanted.c_str(), size);
        const auto found = blocks_.find(wanted);
        if (found != blocks_.end()) {
            const bool sameSize = static_cast<int64_t>(found->second.bytes.size()) == size;
            require(data == (sameSize ? found->second.data : nullptr), "another block was found");
        } else if (data != nullptr) {
            require(!wanted.empty() && wanted.size() < G_TYPED_MEMORY_NAME_SIZE && size > 0,
                    "a name or a size should have been refused");
            blocks_[wanted] = {data, std::vector<uint8_t>(static_cast<size_t>(size))};
        }
    }

    void select() {
        const std::u16string wanted = name();
        const auto found = blocks_.find(wanted);
        require(GMGMemSelect(wanted.c_str()) ==
                    (found != blocks_.end() ? found->second.data : nullptr),
                "a block was not found, or one that is not there");
    }

    void remove() {
        const std::u16string wanted = name();
        const auto found = blocks_.find(wanted);
        GMGMemDelete(found != blocks_.end() ? found->second.data : this);
        if (found != blocks_.end()) {
            blocks_.erase(found);
        }
    }

    template <typename Value, auto Set>
    void set() {
        Block* const block = pick();
        const uint32_t at = offset();
        Value value{};
        const auto bytes = in_.eightBytes();
        std::memcpy(&value, bytes.data(), sizeof value);
        Set(block != nullptr ? block->data : nullptr, at, value);
        if (block != nullptr && uint64_t{at} + sizeof value <= block->bytes.size()) {
            std::memcpy(&block->bytes[at], &value, sizeof value);
        }
    }

    template <typename Value, auto Get>
    void get() {
        const Block* const block = pick();
        const uint32_t at = offset();
        Value expected{};
        if (block != nullptr && uint64_t{at} + sizeof expected <= block->bytes.size()) {
            std::memcpy(&expected, &block->bytes[at], sizeof expected);
        }
        const auto actual = static_cast<Value>(Get(block != nullptr ? block->data : nullptr, at));
        using Bytes = std::array<uint8_t, sizeof(Value)>; // by which a NaN equals itself
        require(std::bit_cast<Bytes>(actual) == std::bit_cast<Bytes>(expected),
                "another value was read");
    }

    void setString() {
        Block* const block = pick();
        const uint32_t at = offset();
        const std::u16string text = name();
        GMGMemSetString(block != nullptr ? block->data : nullptr, at, text.c_str());
        const size_t size = 2 * (text.size() + 1);
        if (block != nullptr && uint64_t{at} + size <= block->bytes.size()) {
            std::memcpy(&block->bytes[at], text.c_str(), size);
        }
    }

    void failMemory() { platform_.failAllocation(in_.below(3)); }

    Input& in_;
    RecordingPlatform platform_;
    Blocks blocks_;
};

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    quarlo::fuzz::Program(input).run();
    return 0;
}
