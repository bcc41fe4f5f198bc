#include "vbscript/runtime/RandomGenerator.h"

#include <bit>
#include <chrono>
#include <ctime>

namespace vbs {

float RandomGenerator::Rnd(float number) {
  if (number != 0) {
    if (number < 0) {
      const auto bits = std::bit_cast<uint32_t>(number);
      m_seed = (bits + (bits >> 24)) & kMask;
    }
    m_seed = (m_seed * 0x43FD43FDu + 0xC39EC3u) & kMask;
  }
  return static_cast<float>(m_seed) / 16777216.0f;
}

void RandomGenerator::MixHighBits(uint32_t bits) {
  m_seed = (((bits & 0xFFFF) << 8) ^ ((bits >> 8) & 0xFFFF00)) | (m_seed & 0xFF);
}

void RandomGenerator::Randomize(double number) {
  MixHighBits(static_cast<uint32_t>(std::bit_cast<uint64_t>(number) >> 32));
}

void RandomGenerator::RandomizeFromTimer(float timer) { MixHighBits(std::bit_cast<uint32_t>(timer)); }

float SecondsSinceMidnight() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const auto millis = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  return static_cast<float>(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) +
         static_cast<float>(millis) / 1000.0f;
}

}  // namespace vbs
