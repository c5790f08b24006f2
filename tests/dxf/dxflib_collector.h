#pragma once

#include <dxflib/dl_creationadapter.h>

#include <complex>
#include <set>
#include <string>
#include <vector>

namespace support {

/// An entity as dxflib reports it.
struct ReadEntity {
    std::string kind;
    std::string layer;
    int colour = 0;
    std::vector<std::complex<double>> points;
    double radius = 0, start = 0, end = 0; ///< of an arc; degrees
    double height = 0, angle = 0;          ///< of a text; radians
    std::string text;
    int flags = 0;                      ///< of a polyline
    std::set<std::string> vertexLayers; ///< likewise
    bool flat = true;                   ///< no vertex has a height or a bulge
    bool ended = false;                 ///< a polyline's end was seen
};

/// Keeps everything that dxflib finds in a file.
class DxflibCollector final : public DL_CreationAdapter {
public:
    std::vector<ReadEntity> entities;
    std::vector<std::string> layers;

    /// False when dxflib cannot read the file.
    bool Read(const std::string& path);

    void addLayer(const DL_LayerData& data) override;
    void addPolyline(const DL_PolylineData& data) override;
    void addVertex(const DL_VertexData& data) override;
    void endSequence() override;
    void addArc(const DL_ArcData& data) override;
    void addText(const DL_TextData& data) override;

private:
    ReadEntity& Add(const char* kind);
};

} // namespace support
