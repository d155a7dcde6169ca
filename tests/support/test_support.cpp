#include "support/test_support.h"

#include <fstream>
#include <random>
#include <sstream>

namespace wayscribe::test {

Answer ScriptedPlatform::message(const std::string &text, const std::string &title, MessageButtons buttons,
                                 MessageIcon icon, const std::string &detail)
{
    messages.push_back({text, title, buttons, icon, detail});
    if (buttons == MessageButtons::Ok)
        return Answer::Ok;
    if (answers.empty())
        return Answer::Yes;
    const Answer a = answers.front();
    answers.pop_front();
    return a;
}

std::string ScriptedPlatform::inputBox(const std::string &, const std::string &, const std::string &)
{
    if (inputs.empty())
        return {};
    std::string s = inputs.front();
    inputs.pop_front();
    return s;
}

std::string ScriptedPlatform::chooseOpenFile(const FileDialogRequest &request)
{
    dialogs.push_back(request);
    if (files.empty())
        return {};
    std::string s = files.front();
    files.pop_front();
    return s;
}

std::string ScriptedPlatform::chooseSaveFile(const FileDialogRequest &request)
{
    return chooseOpenFile(request);
}

std::string ScriptedPlatform::chooseFolder(const std::string &title, const std::string &startFolder)
{
    return chooseOpenFile({title, "", startFolder, ""});
}

TempDir::TempDir()
{
    std::random_device rd;
    path_ = std::filesystem::temp_directory_path() /
            ("wayscribe-test-" + std::to_string(rd()) + std::to_string(rd()));
    std::filesystem::create_directories(path_);
}

TempDir::~TempDir()
{
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                 ec);
    std::filesystem::remove_all(path_, ec);
}

std::string readFile(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void writeFile(const std::string &path, const std::string &bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

void placeSettlement(World &world, int n, int x, int y, const std::string &name, const std::string &cityState)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), cityState};
    world.sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
    world.sector(x, y).settlementName = name;
}

std::string recordText(const Settlement &settlement)
{
    return std::to_string(settlement.inUse) + " " + std::to_string(settlement.x) + "," +
           std::to_string(settlement.y) + " " + settlement.cityState;
}

void stockItem(World &world, int n, int shop, int item, const std::string &name, const std::string &number,
               const std::string &price)
{
    world.setItem(n, shop, item, ItemField::Name, name);
    world.setItem(n, shop, item, ItemField::Number, number);
    world.setItem(n, shop, item, ItemField::Price, price);
}

} // namespace wayscribe::test
