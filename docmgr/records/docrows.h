#pragma once
// The rows of a list in their order, each made into a DocInfo when the walk reaches it.
// One DocInfo serves the whole walk: what a step hands out is valid until the next step.
#include <cstddef>
#include <iterator>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/rowstore.h"

class DocRows {
public:
    DocRows(const RowStore& store, const std::vector<RowStore::Id>& order) : store_(&store), order_(&order) {}

    class iterator {
    public:
        using difference_type = std::ptrdiff_t;
        using value_type = const DocInfo*;

        iterator() = default;
        iterator(const DocRows* rows, size_t at) : rows_(rows), at_(at) {}
        const DocInfo* operator*() const { return (*rows_)[at_]; }
        iterator& operator++()
        {
            ++at_;
            return *this;
        }
        iterator operator++(int)
        {
            iterator before = *this;
            ++at_;
            return before;
        }
        bool operator==(const iterator& other) const { return at_ == other.at_; }

    private:
        const DocRows* rows_ = nullptr;
        size_t at_ = 0;
    };

    iterator begin() const { return {this, 0}; }
    iterator end() const { return {this, size()}; }
    size_t size() const { return order_->size(); }
    bool empty() const { return order_->empty(); }
    // Row `i`, valid until another row is asked for.
    const DocInfo* operator[](size_t i) const
    {
        if (filled_ != i) {
            store_->Fill((*order_)[i], scratch_);
            filled_ = i;
        }
        return &scratch_;
    }

private:
    const RowStore* store_;
    const std::vector<RowStore::Id>* order_;
    mutable DocInfo scratch_;
    mutable size_t filled_ = size_t(-1);
};
