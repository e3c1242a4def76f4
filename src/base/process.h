#pragma once

namespace base {

/// How every process of the program behaves, from its start: what it makes can be read and written by its owner alone,
/// for it holds what patients trust a doctor with; a write beyond the size that a file may have fails, instead of
/// ending the process with all that was typed; and the memory of pictures and pages goes back to the machine when they
/// go: a day of work holds 20 MB less (`script/soak`).
void settleProcess();

}  // namespace base
