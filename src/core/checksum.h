// The checksum that programs show of a memory.
#pragma once

#include <cstdint>
#include <span>

namespace varnholt {

// CRC-32 as zlib has it: reflected polynomial EDB88320h, all ones before and behind.
constexpr std::uint32_t CRC_32(std::span<const std::uint8_t> Bytes)
{
    std::uint32_t CRC = 0xFFFFFFFF;
    for (const std::uint8_t b : Bytes) {
        CRC ^= b;
        for (int i = 0; i < 8; ++i)
            CRC = CRC >> 1 ^ ((CRC & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~CRC;
}

} // namespace varnholt
