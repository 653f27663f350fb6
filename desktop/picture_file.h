// What the bytes of a picture file tell without decoding them.
#pragma once

#include <QByteArrayView>

namespace brolgan::desktop {

// What a file is: a JPEG or PNG picture from its first byte to its last mark, the beginning of one,
// or anything else, which only a decoder can judge. A decoder is no judge of the first two: it shows
// a JPEG that was cut short as grey.
enum class PictureFile { whole, cutShort, other };

PictureFile inspect(QByteArrayView bytes);

}  // namespace brolgan::desktop
