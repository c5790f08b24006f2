#pragma once

#include "qsymbol/drawing/dxf_contents.h"

namespace qsymbol {

/// Gives out the handles of what only the file's frame needs.
class DxfHandles {
public:
    explicit DxfHandles(DxfHandle last) : last_(last) {}

    DxfHandle New() { return ++last_; }
    DxfHandle Next() const { return last_ + 1; }

private:
    DxfHandle last_;
};

/// Tables and objects point at one another through these.
struct DxfLayouts {
    DxfHandle model = 0;
    DxfHandle paper = 0;
};

inline DxfLayouts NewLayouts(DxfHandles& handles) {
    const DxfHandle model = handles.New();
    return {model, handles.New()};
}

// The sections of the file in their order, each whole.
void AppendHeader(DxfTags& out, const DxfContents& contents, const DxfHandles& handles);
void AppendTables(DxfTags& out, const DxfContents& contents, const DxfLayouts& layouts, DxfHandles& handles);
void AppendBlocks(DxfTags& out, const DxfContents& contents, DxfHandles& handles);
void AppendObjects(DxfTags& out, const DxfContents& contents, const DxfLayouts& layouts, DxfHandles& handles);

} // namespace qsymbol
