#include "TestoFuzz.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace lottolab::fuzz {

namespace fs = std::filesystem;

namespace {

struct CartellaDelProcesso {
  fs::path percorso;
  CartellaDelProcesso() {
    std::string modello = (fs::temp_directory_path() / "lottolab-fuzz-XXXXXX").string();
    if (!mkdtemp(modello.data())) throw std::runtime_error("mkdtemp");
    percorso = modello;
  }
  ~CartellaDelProcesso() {
    std::error_code ec;
    fs::remove_all(percorso, ec);
  }
};

const fs::path& Cartella() {
  static CartellaDelProcesso cartella;
  return cartella.percorso;
}

}  // namespace

std::u16string DecodificaMista(const uint8_t* data, size_t size) {
  std::u16string text;
  text.reserve(size);
  for (size_t i = 0; i < size;) {
    uint8_t lead = data[i];
    size_t extra = lead >= 0xE0 && lead < 0xF0 ? 2 : lead >= 0xC0 && lead < 0xE0 ? 1 : 0;
    bool valid = extra > 0 && i + extra < size;
    for (size_t k = 1; valid && k <= extra; ++k) valid = (data[i + k] & 0xC0) == 0x80;
    if (!valid) {
      text.push_back(lead);
      ++i;
      continue;
    }
    char16_t code = lead & (extra == 1 ? 0x1F : 0x0F);
    for (size_t k = 1; k <= extra; ++k) code = static_cast<char16_t>((code << 6) | (data[i + k] & 0x3F));
    text.push_back(code);
    i += extra + 1;
  }
  return text;
}

fs::path ScriviFileTemporaneo(std::string_view nome, std::string_view byte) {
  fs::path file = Cartella() / nome;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(byte.data(), static_cast<std::streamsize>(byte.size()));
  if (!out.flush()) std::abort();
  return file;
}

}  // namespace lottolab::fuzz
