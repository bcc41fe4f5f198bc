#pragma once

// A fresh folder for one test, removed with everything in it when the test ends.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lottolab::test {

class CartellaTemporanea {
 public:
  CartellaTemporanea() {
    std::random_device caso;
    m_percorso =
        std::filesystem::temp_directory_path() / ("lottolab-test-" + std::to_string(caso()) + std::to_string(caso()));
    std::filesystem::create_directories(m_percorso);
  }
  ~CartellaTemporanea() {
    std::error_code ec;
    std::filesystem::remove_all(m_percorso, ec);
  }
  CartellaTemporanea(const CartellaTemporanea&) = delete;
  CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;

  std::filesystem::path operator/(const std::string& nome) const { return m_percorso / nome; }
  const std::filesystem::path& Percorso() const { return m_percorso; }

 private:
  std::filesystem::path m_percorso;
};

// A fresh folder that is also the program's base folder while it lives, so that no user's
// configuration is read and whatever the code under test saves there goes with it.
class BaseTemporanea : public CartellaTemporanea {
 public:
  BaseTemporanea() { setenv("LOTTOLAB_HOME", Percorso().c_str(), 1); }
  ~BaseTemporanea() { unsetenv("LOTTOLAB_HOME"); }
};

inline std::vector<unsigned char> LeggiByte(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void ScriviByte(const std::filesystem::path& file, const std::vector<unsigned char>& byte) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(byte.data()), static_cast<std::streamsize>(byte.size()));
}

// The whole file as bytes in a string; empty when it cannot be read.
inline std::string Leggi(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Writes `byte` as the whole file, creating the folders it needs.
inline void Scrivi(const std::filesystem::path& file, std::string_view byte) {
  if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary | std::ios::trunc) << byte;
}

}  // namespace lottolab::test
