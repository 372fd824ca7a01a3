#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace korvane {

/// Values found by hash, the least recently used of which goes first. Looking up allocates nothing; a value's
/// place in memory may move when another is added.
///
/// A value type has `std::size_t Bytes() const`, the memory that counts against the budget.
template <typename Value, std::size_t kMaxEntries>
class LruTable {
  public:
    /// Keeps at most `budget` bytes, or one value if that alone is larger.
    explicit LruTable(std::size_t budget) : budget_(budget) { buckets_.fill(kNone); }

    /// The value with that hash for which `matches` is true, from here on the most recently used; null if
    /// there is none.
    template <typename Matches>
    Value* Find(std::uint64_t hash, Matches matches) {
        for (Index i = buckets_[Bucket(hash)]; i != kNone; i = nodes_[i].nextInBucket) {
            if (nodes_[i].hash == hash && matches(nodes_[i].value)) {
                MoveToFront(i);
                return &nodes_[i].value;
            }
        }
        return nullptr;
    }

    /// Adds a value. Valid until the next one is added.
    Value& Add(std::uint64_t hash, Value value) {
        const Index added = TakeNode();
        Node& node = nodes_[added];
        node.value = std::move(value);
        node.hash = hash;
        node.bytes = node.value.Bytes();
        bytes_ += node.bytes;
        node.nextInBucket = buckets_[Bucket(hash)];
        buckets_[Bucket(hash)] = added;
        LinkFront(added);
        Shrink();
        return node.value;
    }

    /// To be called when the most recently used value has changed its size.
    void Recount() {
        Node& node = nodes_[newest_];
        bytes_ += node.value.Bytes() - node.bytes;
        node.bytes = node.value.Bytes();
        Shrink();
    }

    std::size_t Bytes() const { return bytes_; }

  private:
    using Index = std::uint16_t;
    static constexpr Index kNone = 0xFFFF;
    static constexpr std::size_t kBuckets = kMaxEntries * 2;
    static_assert(kMaxEntries < kNone && (kBuckets & (kBuckets - 1)) == 0);

    struct Node {
        Value value;
        std::uint64_t hash = 0;
        std::size_t bytes = 0;
        Index nextInBucket = kNone;
        Index newer = kNone;
        Index older = kNone;
    };

    static std::size_t Bucket(std::uint64_t hash) { return static_cast<std::size_t>(hash) & (kBuckets - 1); }

    Index TakeNode() {
        if (free_ == kNone && nodes_.size() == kMaxEntries)
            DropOldest();
        if (free_ != kNone) {
            const Index taken = free_;
            free_ = nodes_[taken].nextInBucket;
            return taken;
        }
        nodes_.emplace_back();
        return static_cast<Index>(nodes_.size() - 1);
    }

    void Shrink() {
        while (bytes_ > budget_ && oldest_ != newest_)
            DropOldest();
    }

    void DropOldest() {
        const Index dropped = oldest_;
        Node& node = nodes_[dropped];
        Unlink(dropped);
        Index* link = &buckets_[Bucket(node.hash)];
        while (*link != dropped)
            link = &nodes_[*link].nextInBucket;
        *link = node.nextInBucket;
        bytes_ -= node.bytes;
        node.value = Value();
        node.nextInBucket = free_;
        free_ = dropped;
    }

    void MoveToFront(Index i) {
        if (i != newest_) {
            Unlink(i);
            LinkFront(i);
        }
    }

    void Unlink(Index i) {
        Node& node = nodes_[i];
        (node.newer == kNone ? newest_ : nodes_[node.newer].older) = node.older;
        (node.older == kNone ? oldest_ : nodes_[node.older].newer) = node.newer;
    }

    void LinkFront(Index i) {
        Node& node = nodes_[i];
        node.newer = kNone;
        node.older = newest_;
        (newest_ == kNone ? oldest_ : nodes_[newest_].newer) = i;
        newest_ = i;
    }

    std::size_t budget_;
    std::size_t bytes_ = 0;
    std::vector<Node> nodes_;
    std::array<Index, kBuckets> buckets_;
    Index newest_ = kNone;
    Index oldest_ = kNone;
    Index free_ = kNone;
};

}  // namespace korvane
