#pragma once

#include <string>
#include <vector>

namespace mill::bench {

/// The least work a conversion can be: for each file, read it whole and write headers, colours and
/// reversed rows with plain system calls, without a window and without checks. The pictures are
/// `width` × `height` with rows of exactly that width.
void convertPlainly(const std::vector<std::string>& names, const std::string& from,
                    const std::string& to, int width, int height);

}  // namespace mill::bench
