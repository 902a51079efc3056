#pragma once

namespace ridelog {

/// Has screen readers call the chart views of this folder charts, with the name and the description that each
/// has. To be called by whatever makes one; once is enough, more do no harm.
void presentChartsAsSuch();

} // namespace ridelog
