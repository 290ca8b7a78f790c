// Numbers as they stand in files: little-endian, not aligned.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>
#include <vector>

#include "graphics/errors.h"

namespace orbelle::graphics {

static_assert(std::endian::native == std::endian::little);

// Puts the number at the end. Its type is always said at the call, for it is the width in the file.
template <typename Number>
void Append(std::vector<std::uint8_t>& bytes, std::type_identity_t<Number> value) {
    const std::size_t end = bytes.size();
    bytes.resize(end + sizeof value);
    std::memcpy(bytes.data() + end, &value, sizeof value);
}

// The number at any place, also outside: bytes that are not there read as zero.
template <typename Number>
Number NumberAt(std::span<const std::uint8_t> bytes, std::size_t place) {
    Number value = 0;
    if (place < bytes.size())
        std::memcpy(&value, bytes.data() + place, std::min(sizeof value, bytes.size() - place));
    return value;
}

// Goes through bytes that someone else keeps. Throws Error, without moving on, when fewer are left
// than asked for.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : left_(bytes) {}

    std::span<const std::uint8_t> Take(std::size_t count) {
        if (count > left_.size())
            throw Error("the file is cut short");
        const auto taken = left_.first(count);
        left_ = left_.subspan(count);
        return taken;
    }

    std::span<const std::uint8_t> TakeRest() { return Take(left_.size()); }

    template <typename Number>
    Number Read() {
        return NumberAt<Number>(Take(sizeof(Number)), 0);
    }

private:
    std::span<const std::uint8_t> left_;
};

}  // namespace orbelle::graphics
