#pragma once

// A small results file in the operator's layout, for the tests that import one.

namespace lottolab::test {

// Three draws of Bari and Venezia; Venezia gives 7 in the second. Rome is written "RM" and
// Nazionale "RN", as the operator writes them; both are drawn only in the third, so the first two
// hold those wheels empty.
inline constexpr const char* kRisultati =
    "2005/04/30\tBA\t1\t2\t3\t4\t5\n"
    "2005/04/30\tVE\t10\t11\t12\t13\t14\n"
    "2005/05/03\tBA\t21\t22\t23\t24\t25\n"
    "2005/05/03\tVE\t6\t7\t8\t9\t15\n"
    "2005/05/04\tBA\t31\t32\t33\t34\t35\n"
    "2005/05/04\tRM\t41\t42\t43\t44\t45\n"
    "2005/05/04\tRN\t51\t52\t53\t54\t7\n"
    "2005/05/04\tVE\t61\t62\t63\t64\t65\n";

}  // namespace lottolab::test
