#pragma once

// The pseudo-random numbers of Rnd and Randomize, bit for bit as Windows produces them, so that a
// script seeded the same way draws the same numbers. The generator is the 24-bit linear
// congruential one Microsoft documents for Visual Basic (knowledge base article 231847):
//
//   seed = (seed * 0x43FD43FD + 0xC39EC3) mod 2^24        Rnd returns seed / 2^24 as a Single
//
// starting from seed 0x50000, so a script that never calls Randomize sees 0.7055475, 0.533424, ...
//  - Rnd(0) returns the last number again (at first 0x50000 / 2^24); Rnd() and Rnd(positive) step.
//  - Rnd(negative) first makes the seed from the argument's Single bits b: (b + (b >> 24)) mod 2^24,
//    then steps; so Rnd(-1) is always 0.224007 and starts the same sequence again.
//  - Randomize(number) keeps the seed's low byte and replaces its upper 16 bits with a mix of the
//    high 32 bits h of the number as a Double: ((h & 0xFFFF) << 8) xor ((h >> 8) & 0xFFFF00). It
//    mixes into the current seed instead of replacing it, which is why "Randomize 5" twice gives
//    different numbers unless Rnd(-1) resets the seed first.
//  - Randomize without a number does the same with the 32 bits of Timer as a Single.

#include <cstdint>

namespace vbs {

class RandomGenerator {
 public:
  static constexpr uint32_t kInitialSeed = 0x50000;

  explicit RandomGenerator(uint32_t seed = kInitialSeed) : m_seed(seed & kMask) {}

  // What Rnd(number) returns; Rnd() is Rnd(1).
  float Rnd(float number);
  void Randomize(double number);
  void RandomizeFromTimer(float timer);

  uint32_t seed() const { return m_seed; }

 private:
  static constexpr uint32_t kMask = 0xFFFFFF;

  void MixHighBits(uint32_t bits);

  uint32_t m_seed;
};

// Seconds since local midnight with their milliseconds, as Timer returns them.
float SecondsSinceMidnight();

}  // namespace vbs
