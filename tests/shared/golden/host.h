#pragma once

#include "golden/element_text.h"

namespace golden {

/// A host with one symbol, one surface, one catalogue and a folder. Its commands:
///   settings german|english                  the user's regional settings; at first german
///   file NAME       + lines                  a file of these lines, each with \r\n
///   bytes NAME      + pieces                 a file of these pieces, one behind the other
///   binary NAME     + short form             a binary file
///   folder NAME                              a folder within the folder
///   text NAME                                outputs the lines of a file, or missing
///   same NAME NAME                           outputs "same" or "different"
///   entities NAME                            outputs the entities of a DXF file
///   symbol REFX REFY WIDTH HEIGHT + elements a new symbol
///   at NAME                                  its path
///   read [ANSWER …], write [ANSWER …]        answers to the boxes that come: ok, yes, no, abort, retry, ignore
///   show                                     outputs the symbol
///   rows NAME HEADER + rows                  for each row "LINE|LINE|… -> OUTPUTS": a file of header and lines is read and
///                                            ends in an error or outputs its elements
///   katalog [NAME [ANSWER …]]                a new catalogue from a folder ("." for the folder itself); outputs its names
///   liste NAME KEYS [ANSWER …]               the same by a list of names between commas; outputs yes or no ahead of them
///   scale UNITS [X Y]                        world units a pixel and the world point at pixel 0,0
///   surface NAME [printer], mode NUMBER      what is drawn on
///   fails ACCESS                             from now on; without an access nothing fails
///   draw X Y DEGREES [PRINTER SCREEN [MARK]] outputs the accesses to the surface
///   element + element, elements + elements   draws them as an editor does
///   tracker + element                        its handles
///   fit WIDTH HEIGHT                         draws into a box of that size
///   factors PRINTER SCREEN                   of the last drawing
///   bounds X Y DEGREES                       outputs left, top, right, bottom
///   hit X Y DEGREES PX PY [PX2 PY2]          by a pixel or a rectangle; outputs yes or no
///   catch X Y DEGREES PX PY RANGE            outputs the caught point and its pixel, or no
///   dxf X Y DEGREES MIRROR NAME              appends to a file
///   colour NUMBER [editor]                   outputs a colour
/// Every failure is an output: "error 9", or number, source and text when it is not a run-time error of the library.
/// So is every box: "notice …", "ask TITLE: …", "failure …".
class Host {
public:
    virtual ~Host() = default;

    virtual Lines Do(const Step& step) = 0;
    /// Whether this host sees outputs of this kind.
    virtual bool Sees(const std::string& output) const = 0;
};

/// Plays a case; every difference is a failure of the running test that names the line.
void Play(const Case& one, Host& host);

/// The lines of a file, escaped; the last part counts only when it is not empty.
Lines FileLines(const std::string& text);

/// The outputs of a symbol: size and reference point, then its elements.
Lines SymbolText(std::int32_t refX, std::int32_t refY, std::int32_t width, std::int32_t height,
                 const std::vector<Element>& elements);

} // namespace golden
