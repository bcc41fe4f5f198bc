#include "LibreriaDiProva.h"
