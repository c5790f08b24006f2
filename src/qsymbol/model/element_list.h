#pragma once

#include "qsymbol/model/computed_once.h"
#include "qsymbol/model/element_extent.h"
#include "qsymbol/model/element_record.h"
#include "qsymbol/model/element_store.h"
#include "qsymbol/model/packed_elements.h"

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

namespace qsymbol {

/// A symbol's elements in drawing order: later ones paint over earlier ones.
///
/// A vector that keeps where its elements reach to once that was asked for: copies take it along, every access for a
/// change drops it. So a reference for changes is good until the extent is asked for. Elements that were read from a file
/// may stay packed until one is looked at; nobody sees a difference.
class ElementList {
    using Records = ElementStore::Records;

public:
    using value_type = ElementRecord;
    using iterator = Records::iterator;
    using const_iterator = Records::const_iterator;

    ElementList() = default;
    explicit ElementList(std::size_t count) : store_(Records(count)) {}
    ElementList(std::initializer_list<ElementRecord> records) : store_(Records(records)) {}
    ElementList(std::vector<ElementRecord> records) : store_(std::move(records)) {}
    ElementList(PackedElements packed) : store_(std::move(packed)) {}

    bool empty() const { return size() == 0; }
    std::size_t size() const { return store_.Count(); }
    const ElementRecord* data() const { return Look().data(); }
    const ElementRecord& operator[](std::size_t index) const { return Look()[index]; }
    const ElementRecord& at(std::size_t index) const { return Look().at(index); }
    const ElementRecord& front() const { return Look().front(); }
    const ElementRecord& back() const { return Look().back(); }
    const_iterator begin() const { return Look().begin(); }
    const_iterator end() const { return Look().end(); }

    ElementRecord& operator[](std::size_t index) { return Edit()[index]; }
    ElementRecord& at(std::size_t index) { return Edit().at(index); }
    ElementRecord& front() { return Edit().front(); }
    ElementRecord& back() { return Edit().back(); }
    iterator begin() { return Edit().begin(); }
    iterator end() { return Edit().end(); }
    void push_back(ElementRecord element) { Edit().push_back(std::move(element)); }
    ElementRecord& emplace_back() { return Edit().emplace_back(); }
    void reserve(std::size_t count) { Edit().reserve(count); }
    void resize(std::size_t count) { Edit().resize(count); }
    void assign(std::size_t count, const ElementRecord& element) { Edit().assign(count, element); }
    void clear() { Edit().clear(); }

    /// Where the elements reach to, computed once.
    const ElementExtent& Extent() const {
        return extent_.Get([this] { return ExtentOf(Look()); });
    }

    friend bool operator==(const ElementList& a, const ElementList& b) { return a.Look() == b.Look(); }

private:
    const Records& Look() const { return store_.Look(); }
    Records& Edit() {
        extent_.Drop();
        return store_.Edit();
    }

    ElementStore store_;
    ComputedOnce<ElementExtent> extent_;
};

} // namespace qsymbol
