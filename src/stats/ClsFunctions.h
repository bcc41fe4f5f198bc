#pragma once

// The arithmetic as the formula evaluator of the figure searches has always computed it. A few of
// its answers differ from the shared functions of Numeri.h, and the figures a search finds depend
// on them, so those few keep their own rules here; every other method answers exactly as the
// shared function of the same name, to which it hands the call. The object holds no state.

#include <cstdint>
#include <string_view>

namespace lottolab::stats {

class ClsFunctions {
 public:
  // n rounded half to even; 0 becomes 90 and 90 is taken off while the value exceeds 90, so a
  // negative number comes back unchanged (-1 stays -1, where the shared Fuori90 gives 89).
  static int16_t Fuori90(double n);

  // This object's Fuori90 of n + 45: -50 gives -5.
  static int16_t Diametrale(double n);

  // 91 - n for n above 0 (1 <-> 90, not reduced: 100 gives -9), -1 otherwise.
  static int16_t Simmetrico(double n);

  // The larger of a and b (rounded) minus the smaller, 0 reported as 90.
  static int16_t Differenza_ab(double a, double b);

  // The shortest distance on the circle of 90 from Differenza_ab, a and b not reduced first: equal
  // numbers give 90 and a difference beyond 90 folds below 0 (1 and 100 give -9).
  static int16_t DiffCiclometrica(double a, double b);

  // The value of the last character of the text with its blanks trimmed: " 12 " gives 2, "12abc"
  // and the empty text give 0. A number answers as the shared Cadenza.
  static int16_t Cadenza(std::string_view testo);
  static int16_t Cadenza(double n);

  static int16_t FuoriX(double n, int16_t base);
  static int16_t DiametraleD(double n);
  static int16_t Figura(double n);
  static int16_t Decina(double n);
  static int16_t DecinaNaturale(double n);
  static int16_t DecinaCabalistica(double n);
  static int16_t ControFigura(double n);
  static int16_t Radicale(double n);
  static int16_t vert(double n);
  static int16_t Gemello(double n);
  static int16_t Distanza(double a, double b);
};

}  // namespace lottolab::stats
