// Runs a fuzz target's entry point over every file of its corpus folders, so that the everyday build keeps
// passing the inputs the fuzzer kept and the ones that once made it fail. A failing input aborts,
// as under the fuzzer; the name of each file is printed first so that the log says which.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  if (argc < 2) {
    std::fprintf(stderr, "uso: %s CARTELLA_CORPUS [CARTELLA_CORPUS ...]\n", argv[0]);
    return 2;
  }
  std::vector<fs::path> file;
  for (int i = 1; i < argc; ++i) {
    const size_t prima = file.size();
    for (const auto& voce : fs::directory_iterator(fs::absolute(argv[i])))
      if (voce.is_regular_file()) file.push_back(voce.path());
    if (file.size() == prima) {
      std::fprintf(stderr, "corpus vuoto: %s\n", argv[i]);
      return 1;
    }
  }
  std::sort(file.begin(), file.end());
  for (const fs::path& percorso : file) {
    std::printf("%s\n", percorso.filename().c_str());
    std::fflush(stdout);
    std::ifstream in(percorso, std::ios::binary);
    std::string byte((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(byte.data()), byte.size());
  }
  std::printf("%zu passed, 0 failed\n", file.size());
  return 0;
}
