#pragma once

#include "qsymbol/model/computed_once.h"
#include "qsymbol/model/element_extent.h"
#include "qsymbol/model/element_record.h"

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

namespace qsymbol {

/// A symbol's elements in drawing order: later ones paint over earlier ones.
///
/// A vector that keeps where its elements reach to once that was asked for: copies take it along, every access for a
/// change drops it. So a reference for changes is good until the extent is asked for.
class ElementList {
    using Records = std::vector<ElementRecord>;

public:
    using value_type = ElementRecord;
    using iterator = Records::iterator;
    using const_iterator = Records::const_iterator;

    ElementList() = default;
    explicit ElementList(std::size_t count) : records_(count) {}
    ElementList(std::initializer_list<ElementRecord> records) : records_(records) {}
    ElementList(std::vector<ElementRecord> records) : records_(std::move(records)) {}

    bool empty() const { return records_.empty(); }
    std::size_t size() const { return records_.size(); }
    const ElementRecord* data() const { return records_.data(); }
    const ElementRecord& operator[](std::size_t index) const { return records_[index]; }
    const ElementRecord& at(std::size_t index) const { return records_.at(index); }
    const ElementRecord& front() const { return records_.front(); }
    const ElementRecord& back() const { return records_.back(); }
    const_iterator begin() const { return records_.begin(); }
    const_iterator end() const { return records_.end(); }

    ElementRecord& operator[](std::size_t index) { return Edit()[index]; }
    ElementRecord& at(std::size_t index) { return Edit().at(index); }
    ElementRecord& front() { return Edit().front(); }
    ElementRecord& back() { return Edit().back(); }
    iterator begin() { return Edit().begin(); }
    iterator end() { return Edit().end(); }
    void push_back(ElementRecord element) { Edit().push_back(std::move(element)); }
    ElementRecord& emplace_back() { return Edit().emplace_back(); }
    void reserve(std::size_t count) { records_.reserve(count); }
    void resize(std::size_t count) { Edit().resize(count); }
    void assign(std::size_t count, const ElementRecord& element) { Edit().assign(count, element); }
    void clear() { Edit().clear(); }

    /// Where the elements reach to, computed once.
    const ElementExtent& Extent() const {
        return extent_.Get([this] { return ExtentOf(records_); });
    }

    friend bool operator==(const ElementList& a, const ElementList& b) { return a.records_ == b.records_; }

private:
    Records& Edit() {
        extent_.Drop();
        return records_;
    }

    Records records_;
    ComputedOnce<ElementExtent> extent_;
};

} // namespace qsymbol
