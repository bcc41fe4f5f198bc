#pragma once

// What the fuzz targets share: the bytes as text, and a file of the process's own to hand bytes to
// readers that take a path.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lottolab::fuzz {

// The bytes read as UTF-8 where they form it and as Latin-1 where they do not, so ASCII seeds
// mutate into near-miss texts while any UTF-16 unit, surrogates included, stays reachable.
std::u16string DecodificaMista(const uint8_t* data, size_t size);

inline std::string_view ComeTesto(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// `nome` in a folder made for this process, rewritten with the bytes; the folder goes at exit.
std::filesystem::path ScriviFileTemporaneo(std::string_view nome, std::string_view byte);

}  // namespace lottolab::fuzz
