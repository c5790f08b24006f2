#include "dxf/dxflib_collector.h"

#include <dxflib/dl_dxf.h>

namespace support {

bool DxflibCollector::Read(const std::string& path) {
    DL_Dxf reader;
    return reader.in(path, this);
}

void DxflibCollector::addLayer(const DL_LayerData& data) {
    layers.push_back(data.name);
}

void DxflibCollector::addPolyline(const DL_PolylineData& data) {
    Add("POLYLINE").flags = data.flags;
}

void DxflibCollector::addVertex(const DL_VertexData& data) {
    ReadEntity& entity = entities.at(entities.size() - 1);
    entity.points.emplace_back(data.x, data.y);
    entity.vertexLayers.insert(getAttributes().getLayer());
    entity.flat = entity.flat && data.z == 0 && data.bulge == 0;
}

void DxflibCollector::endSequence() {
    entities.at(entities.size() - 1).ended = true;
}

void DxflibCollector::addArc(const DL_ArcData& data) {
    ReadEntity& entity = Add("ARC");
    entity.points.emplace_back(data.cx, data.cy);
    entity.radius = data.radius;
    entity.start = data.angle1;
    entity.end = data.angle2;
}

void DxflibCollector::addText(const DL_TextData& data) {
    ReadEntity& entity = Add("TEXT");
    entity.points.emplace_back(data.ipx, data.ipy);
    entity.height = data.height;
    entity.angle = data.angle;
    entity.text = data.text;
}

ReadEntity& DxflibCollector::Add(const char* kind) {
    ReadEntity& entity = entities.emplace_back();
    entity.kind = kind;
    entity.layer = getAttributes().getLayer();
    entity.colour = getAttributes().getColor();
    return entity;
}

} // namespace support
