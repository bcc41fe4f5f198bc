#include "text/Wildcard.h"

#include "text/Utf.h"

namespace text {

// On a mismatch after a '*', the star takes one more character and matching resumes: linear in
// practice, never exponential.
bool MatchesWildcard(std::u16string_view pattern, std::u16string_view name) {
  size_t p = 0, n = 0, star = std::u16string_view::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == u'?' || text::FoldCase(pattern[p]) == text::FoldCase(name[n]))) {
      ++p;
      ++n;
    } else if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      resume = n;
    } else if (star != std::u16string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == u'*') ++p;
  return p == pattern.size();
}

}  // namespace text
