// The .mp1 file of a QuestOR map: run-length coded terrain, then a stream of
// tokens that places settlements, shops and items.
#include "storage/questor_files.h"

#include "model/platform.h"
#include "model/text.h"
#include "model/world.h"

#include <cstdint>

namespace wayscribe {

namespace {

constexpr int kTerrainCodeCount = 25; // a terrain value is count * 25 + QuestOR code
constexpr int kSpecialItemFirst = 310;
constexpr int kSpecialItemLast = 317;

// Row 0 and column 0 of the sector tables exist, unused; QuestOR
// coordinates may address them without harm.
bool isSectorTableIndex(int v)
{
    return v >= 0 && v <= kMapSize;
}

std::string byteOffset(std::size_t offset)
{
    return "byte offset " + std::to_string(offset);
}

// The file's signed 16-bit little-endian values, one at a time.
class ValueStream {
public:
    explicit ValueStream(const std::string &bytes) : bytes_(bytes) {}

    bool next(int &value)
    {
        if (bytes_.size() - pos_ < 2)
            return false;
        const auto low = static_cast<unsigned char>(bytes_[pos_]);
        const auto high = static_cast<unsigned char>(bytes_[pos_ + 1]);
        value = static_cast<std::int16_t>(static_cast<std::uint16_t>(low | high << 8));
        pos_ += 2;
        return true;
    }
    bool atEnd() const { return pos_ >= bytes_.size(); }
    // Where the value just read began, and where the next one begins.
    std::size_t lastOffset() const { return pos_ - 2; }
    std::size_t nextOffset() const { return pos_; }

private:
    const std::string &bytes_;
    std::size_t pos_ = 0;
};

// The state of the token stream: each token changes it or writes through it.
class TokenReader {
public:
    TokenReader(World &world, Platform &platform, QuestorTokenCounts &counts)
        : world_(world), platform_(platform), counts_(counts)
    {
    }

    // False with a reason when the token would write outside the tables.
    bool apply(int t, std::string &reason)
    {
        if (t >= 1000 && t <= 1999) {
            nameIndex_ = t - 1000;
            return true;
        }
        if (t >= 2000 && t <= 2999) {
            (nextIsX_ ? x_ : y_) = t - 2000;
            nextIsX_ = !nextIsX_;
            return true;
        }
        if (t >= 3000 && t <= 3499)
            return placeSettlement(t - 3000, reason);
        if (t >= 3500 && t <= 3502)
            return true;
        if (t >= 20 && t <= 100) {
            openShop(t);
            return true;
        }
        if (t >= 5000) {
            if (expectShopName_) {
                currentShop().name = formatPlain(t - 5000);
                expectShopName_ = false;
            }
            if (t >= 5001 && expectItemName_) {
                // The name index follows the item's price, so it belongs to
                // the item before the current one. That item took a number
                // within 1..20, and only prices move on from it, one step
                // each within 1..20: the index stays within 0..20.
                world_.setQuestorNameIndex(settlement_, shop_, item_ - 1, t - 5000);
                expectItemName_ = false;
            }
            return true;
        }
        if (t >= 101 && t <= 1000) {
            if (!checkItem(reason))
                return false;
            expectItemName_ = true;
            currentShop().item(item_, ItemField::Number) = formatPlain(t);
            if (t >= kSpecialItemFirst && t <= kSpecialItemLast)
                ++counts_.specialItems;
            return true;
        }
        if (t == 0) {
            if (!checkItem(reason))
                return false;
            currentShop().item(item_, ItemField::Number).clear();
            return true;
        }
        if (t < 0) {
            if (!checkItem(reason))
                return false;
            // The one number of the import written with a blank before it.
            std::string price(1, ' ');
            price += formatPlain(-t);
            currentShop().item(item_, ItemField::Price) = price;
            ++item_;
        }
        return true;
    }

    // Writes the shop being filled back to the model.
    void flush()
    {
        if (buffered_)
            world_.setShop(bufferedSettlement_, bufferedShop_, shopTexts_);
        buffered_ = false;
    }

private:
    // The shop the tokens write to, unpacked once while its tokens last
    // instead of repacked for every text.
    ShopTexts &currentShop()
    {
        if (!buffered_ || bufferedSettlement_ != settlement_ || bufferedShop_ != shop_) {
            flush();
            shopTexts_ = world_.shop(settlement_, shop_);
            bufferedSettlement_ = settlement_;
            bufferedShop_ = shop_;
            buffered_ = true;
        }
        return shopTexts_;
    }

    bool placeSettlement(int n, std::string &reason)
    {
        if (n > kMaxSettlements) {
            platform_.message(kQuestorOver160Warning, kProgramTitle, MessageButtons::Ok, MessageIcon::None);
            n = kMaxSettlements;
        }
        if (!isSectorTableIndex(x_) || !isSectorTableIndex(y_)) {
            reason = "settlement " + std::to_string(n) + " is placed at X " + std::to_string(x_) + ", Y " +
                     std::to_string(y_) + ", outside the map";
            return false;
        }
        Settlement &settlement = world_.settlement(n);
        settlement.inUse = 1;
        settlement.x = static_cast<std::uint8_t>(x_);
        settlement.y = static_cast<std::uint8_t>(y_);
        Sector &sector = world_.sector(x_, y_);
        sector.settlementName = n == 0 ? std::string("Unknown") : formatPlain(nameIndex_);
        sector.settlementNumber = static_cast<std::uint8_t>(n);
        settlement_ = n;
        ++counts_.settlements;
        return true;
    }

    void openShop(int shop)
    {
        shop_ = shop;
        // A placeholder until the shop's name index arrives.
        currentShop().name.assign(1, 'a');
        ++counts_.shops;
        item_ = 1;
        expectShopName_ = true;
        expectItemName_ = false;
    }

    bool checkItem(std::string &reason) const
    {
        if (isItemIndex(item_))
            return true;
        if (item_ == 0)
            reason = "an item comes before the first shop";
        else
            reason = "shop " + std::to_string(shop_) + " of settlement " + std::to_string(settlement_) +
                     " has more than " + std::to_string(kItemsPerShop) + " items";
        return false;
    }

    World &world_;
    Platform &platform_;
    QuestorTokenCounts &counts_;
    int nameIndex_ = 0;
    int x_ = 0;
    int y_ = 0;
    bool nextIsX_ = true;
    int settlement_ = 0;
    int shop_ = 0;
    int item_ = 0;
    bool expectShopName_ = false;
    bool expectItemName_ = false;
    ShopTexts shopTexts_;
    bool buffered_ = false;
    int bufferedSettlement_ = 0;
    int bufferedShop_ = 0;
};

// Terrain runs, column by column; a run may go on into the next column.
bool readTerrain(ValueStream &in, World &world, Platform &platform, bool &changed, QuestorError &error)
{
    int x = 1, y = 1;
    while (x <= kMapSize) {
        int v;
        if (!in.next(v)) {
            error.place = byteOffset(in.nextOffset());
            error.reason = "the file ends before the terrain of column " + std::to_string(x) + " is complete";
            return false;
        }
        platform.processEvents();
        // A negative value makes no run: its count is not positive.
        const int count = v / kTerrainCodeCount;
        const auto terrain = static_cast<std::uint8_t>(v % kTerrainCodeCount + 1);
        for (int k = 0; k < count; ++k) {
            if (x > kMapSize) {
                error.place = byteOffset(in.lastOffset());
                error.reason = "a terrain run goes past the last sector of the map";
                return false;
            }
            Sector &sector = world.sector(x, y);
            sector.terrain = terrain;
            sector.note.clear();
            changed = true;
            if (++y > kMapSize) {
                y = 1;
                ++x;
            }
        }
    }
    return true;
}

} // namespace

bool readQuestorFile(const std::string &path, const InputKind &kind, std::string &bytes, QuestorError &error)
{
    error.path = path;
    bytes.clear();
    InputFile file;
    std::string reason;
    if (!file.open(path, kind, reason)) {
        error.reason = "the file cannot be opened (" + reason + ")";
        return false;
    }
    if (!file.readAll(bytes, reason)) {
        error.reason = "the file cannot be read (" + reason + ")";
        return false;
    }
    return true;
}

bool readQuestorMapFile(const std::string &path, World &world, Platform &platform, QuestorTokenCounts &counts,
                        bool &changed, QuestorError &error)
{
    std::string bytes;
    if (!readQuestorFile(path, kQuestorMapFile, bytes, error))
        return false;
    ValueStream in(bytes);
    if (!readTerrain(in, world, platform, changed, error))
        return false;
    // Two values whose meaning the files do not tell.
    for (int k = 0; k < 2; ++k) {
        int skipped;
        if (!in.next(skipped)) {
            error.place = byteOffset(in.nextOffset());
            error.reason = "the file ends right after the terrain";
            return false;
        }
    }
    TokenReader tokens(world, platform, counts);
    bool ok = true;
    int t;
    while (ok && in.next(t)) {
        platform.processEvents();
        ok = tokens.apply(t, error.reason);
        if (!ok)
            error.place = byteOffset(in.lastOffset());
    }
    if (ok && !in.atEnd()) {
        ok = false;
        error.place = byteOffset(in.nextOffset());
        error.reason = "the file ends in the middle of a value";
    }
    // What was read before a break stays.
    tokens.flush();
    return ok;
}

} // namespace wayscribe
