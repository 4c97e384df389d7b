#pragma once

#include <string>
#include <vector>

namespace mill::bench {

/// The least that a conversion can do: for each file, read it whole and write headers, colours and
/// reversed rows with plain system calls. No window, no checks of the picture. The pictures are
/// `width` × `height` with rows of exactly that width.
void convertPlainly(const std::vector<std::string>& names, const std::string& from,
                    const std::string& to, int width, int height);

}  // namespace mill::bench
