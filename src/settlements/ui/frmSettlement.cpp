#include "settlements/ui/frmSettlement.h"

#include "model/text.h"
#include "settlements/ui/frmAddItem.h"
#include "settlements/ui/frmAddShop.h"
#include "settlements/ui/report_list_view.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "travel/journey_table.h"

#include <QAction>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace wayscribe {

namespace {

QLineEdit *box(const char *name, QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(name);
    return edit;
}

// A list hidden while empty keeps its place, so the window does not jump.
ReportListView *list(const char *name, ReportTable table, const QString &accessibleName, QWidget *parent)
{
    auto *view = new ReportListView(std::move(table), accessibleName, parent);
    view->setObjectName(name);
    // These lists keep the world's order: a row's position is the item's
    // slot, so a header click sorts nothing here.
    view->horizontalHeader()->setSectionsClickable(false);
    view->horizontalHeader()->setStretchLastSection(true);
    QSizePolicy policy = view->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    view->setSizePolicy(policy);
    return view;
}

// Texts hold CR LF line breaks; the notes box shows plain line feeds.
QString multiLine(const std::string &text)
{
    return toQString(replaceAll(text, "\r\n", "\n"));
}

} // namespace

frmSettlement::frmSettlement(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                             QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmSettlement", "Settlement", Escape::Closes), world_(world),
      editor_(world, state, platform, history)
{
    menuBar = new QMenuBar(this);
    menuBar->setObjectName("menuBar");
    mnuOptions = menuBar->addMenu("&Options");
    mnuOptions->setObjectName("mnuOptions");
    mnuTravelTo = mnuOptions->addAction("Travel &To Settlement");
    mnuTravelTo->setObjectName("mnuTravelTo");
    mnuTravelFrom = mnuOptions->addAction("Travel &From Settlement");
    mnuTravelFrom->setObjectName("mnuTravelFrom");
    mnuSep1 = mnuOptions->addSeparator();
    mnuSep1->setObjectName("mnuSep1");
    mnuExit = mnuOptions->addAction("E&xit");
    mnuExit->setObjectName("mnuExit");

    SetName = box("SetName", this);
    SetNum = box("SetNum", this);
    SetCoords = readOnlyBox("SetCoords", this);
    txtCityState = box("txtCityState", this);
    Label1 = buddyLabel("Label1", "Name:", SetName, this);
    Label2 = buddyLabel("Label2", "Number:", SetNum, this);
    Label3 = buddyLabel("Label3", "Coordiates:", SetCoords, this);
    Label5 = buddyLabel("Label5", "City State:", txtCityState, this);

    lstShops = list("lstShops",
                    ReportTable({{"#", 530}, {"Name", 2240}},
                                [this](std::uint32_t row, int column, std::string &out) {
                                    const ShopRow &shop = shopRows_.at(row);
                                    out += column == 1 ? formatPlain(shop.number) : shop.name;
                                }),
                    "Shops", this);
    Label8 = buddyLabel("Label8", "Shops:", lstShops, this);
    SetNotes = new QPlainTextEdit(this);
    SetNotes->setObjectName("SetNotes");
    SetNotes->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    SetNotes->setTabChangesFocus(true);
    Label4 = buddyLabel("Label4", "Notes:", SetNotes, this);
    lstObjects = list("lstObjects",
                      ReportTable({{"Item", 2638}, {"Price", 738, ColumnAlignment::Right}},
                                  [this](std::uint32_t row, int column, std::string &out) {
                                      const ShopItemRow &item = itemRows_.at(row);
                                      out += column == 1 ? item.item : item.price;
                                  }),
                      "Objects in shop", this);
    lblObjects = buddyLabel("lblObjects", "Objects in shop:", lstObjects, this);
    // The item's name takes the room the window has; the price keeps its width.
    lstObjects->horizontalHeader()->setStretchLastSection(false);
    lstObjects->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);

    AddShop = pushButton("AddShop", "Add shop", this);
    AddObject = pushButton("AddObject", "Add object", this);
    cmdClip = pushButton("cmdClip", "Clipboard", this);
    ExitSet = pushButton("ExitSet", "Exit", this);
    txtClipboard = new QPlainTextEdit(this);
    txtClipboard->setObjectName("txtClipboard");
    txtClipboard->hide();

    auto *top = new QGridLayout;
    const std::pair<QLabel *, QLineEdit *> fields[] = {
        {Label1, SetName}, {Label2, SetNum}, {Label3, SetCoords}, {Label5, txtCityState}};
    for (int c = 0; c < 4; ++c) {
        top->addWidget(fields[c].first, 0, c);
        top->addWidget(fields[c].second, 1, c);
    }
    top->setColumnStretch(0, 3);
    top->setColumnStretch(1, 1);
    top->setColumnStretch(2, 1);
    top->setColumnStretch(3, 3);

    auto *left = new QVBoxLayout;
    left->addWidget(Label8);
    left->addWidget(lstShops, 1);
    auto *right = new QVBoxLayout;
    right->addWidget(Label4);
    right->addWidget(SetNotes, 1);
    right->addWidget(lblObjects);
    right->addWidget(lstObjects, 2);
    auto *middle = new QHBoxLayout;
    middle->addLayout(left, 1);
    middle->addLayout(right, 1);

    auto *buttons = new QHBoxLayout;
    for (QPushButton *b : {AddShop, AddObject, cmdClip, ExitSet})
        buttons->addWidget(b);

    auto *layout = new QVBoxLayout(this);
    layout->setMenuBar(menuBar);
    layout->addLayout(top);
    layout->addLayout(middle, 1);
    layout->addLayout(buttons);

    // Opening: the boxes are filled before the change handlers are wired,
    // which is what the loaded flag guards against.
    const SettlementFields opened = editor_.open();
    SetName->setText(toQString(opened.name));
    SetNum->setText(toQString(opened.number));
    SetCoords->setText(toQString(opened.coords));
    SetNotes->setPlainText(multiLine(opened.notes));
    txtCityState->setText(toQString(opened.cityState));
    Refresh_Shops();
    Refresh_Objects();
    const bool locked = editor_.locked();
    AddShop->setEnabled(!locked);
    AddObject->setEnabled(!locked);
    for (QLineEdit *edit : {SetName, SetNum, txtCityState})
        edit->setReadOnly(locked);
    SetNotes->setReadOnly(locked);

    connect(SetName, &QLineEdit::textChanged, this,
            [this](const QString &text) { editor_.nameChanged(fromQString(text)); });
    connect(txtCityState, &QLineEdit::textChanged, this,
            [this](const QString &text) { editor_.cityStateChanged(fromQString(text)); });
    connect(SetNotes, &QPlainTextEdit::textChanged, this, [this] { editor_.notesChanged(notesText()); });
    for (QWidget *w : std::initializer_list<QWidget *>{SetName, SetNum, txtCityState, SetNotes})
        w->installEventFilter(this);
    lstShops->installEventFilter(this);
    lstObjects->installEventFilter(this);
    connect(lstShops, &QAbstractItemView::clicked, this, &frmSettlement::lstShops_Click);
    connect(lstShops, &ReportListView::rowActivated, this, &frmSettlement::lstShops_DblClick);
    connect(lstObjects, &ReportListView::rowActivated, this, &frmSettlement::lstObjects_DblClick);
    connect(AddShop, &QPushButton::clicked, this, &frmSettlement::AddShop_Click);
    connect(AddObject, &QPushButton::clicked, this, &frmSettlement::AddObject_Click);
    connect(cmdClip, &QPushButton::clicked, this, &frmSettlement::cmdClip_Click);
    connect(ExitSet, &QPushButton::clicked, this, &QWidget::close);
    connect(mnuExit, &QAction::triggered, this, &QWidget::close);
    connect(mnuTravelTo, &QAction::triggered, this, [this] { travel(true); });
    connect(mnuTravelFrom, &QAction::triggered, this, [this] { travel(false); });

    resize(640, 460);
}

std::string frmSettlement::notesText() const
{
    return replaceAll(fromQString(SetNotes->toPlainText()), "\n", "\r\n");
}

void frmSettlement::Refresh_Shops()
{
    shopRows_ = editor_.shops();
    lstShops->refill([this](ReportTable &table) {
        table.clear();
        for (std::uint32_t r = 0; r < shopRows_.size(); ++r)
            table.addRow(r);
    });
    lstShops->setVisible(!shopRows_.empty());
    // The row of the shop whose items are shown is marked.
    for (std::size_t r = 0; r < shopRows_.size(); ++r)
        if (shopRows_[r].number == editor_.selectedShop())
            lstShops->selectRow(static_cast<int>(r));
}

void frmSettlement::showObjects(std::vector<ShopItemRow> rows)
{
    itemRows_ = std::move(rows);
    lstObjects->refill([this](ReportTable &table) {
        table.clear();
        for (std::uint32_t r = 0; r < itemRows_.size(); ++r)
            table.addRow(r);
    });
    lstObjects->setVisible(!itemRows_.empty());
}

void frmSettlement::Refresh_Objects()
{
    showObjects(editor_.refreshObjects());
}

void frmSettlement::refreshLists()
{
    Refresh_Shops();
    Refresh_Objects();
}

bool frmSettlement::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        // Only the focus moving on inside the window counts as leaving a
        // box; a message box or another window taking it does not.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool left = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
        if (left && watched == SetNum)
            SetNum_LostFocus();
        else if (left)
            editor_.endTyping();
    } else if (watched == lstShops && event->type() == QEvent::KeyRelease) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            lstShops_Click();
            break;
        case Qt::Key_Delete:
            if (!editor_.locked() && lstShops->selectedRow() && editor_.deleteShop(lstShops->selectedText(1)))
                refreshLists();
            break;
        default:
            break;
        }
    } else if (watched == lstObjects && event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        const std::optional<std::size_t> row = lstObjects->selectedRow();
        if (!editor_.locked() && row && editor_.deleteItem(static_cast<int>(*row) + 1))
            Refresh_Objects();
        return true;
    }
    return SecondaryWindow::eventFilter(watched, event);
}

void frmSettlement::SetNum_LostFocus()
{
    if (const std::optional<std::string> reset =
            editor_.numberLeft(fromQString(SetName->text()), fromQString(SetNum->text()), notesText()))
        SetNum->setText(toQString(*reset));
}

void frmSettlement::lstShops_Click()
{
    if (lstShops->selectedRow())
        showObjects(editor_.selectShop(lstShops->selectedText(1)));
}

void frmSettlement::lstShops_DblClick()
{
    if (editor_.locked() || !lstShops->selectedRow())
        return;
    editor_.selectShop(lstShops->selectedText(1));
    auto *dialog = new frmAddShop(editor_, parentWidget());
    connect(dialog, &frmAddShop::stored, this, &frmSettlement::refreshLists);
    openDialog(dialog);
}

void frmSettlement::lstObjects_DblClick(int row)
{
    if (editor_.locked())
        return;
    editor_.editItem(row + 1);
    auto *dialog = new frmAddItem(editor_, parentWidget());
    connect(dialog, &frmAddItem::stored, this, &frmSettlement::refreshLists);
    openDialog(dialog);
}

void frmSettlement::AddShop_Click()
{
    editor_.addShop();
    auto *dialog = new frmAddShop(editor_, parentWidget());
    connect(dialog, &frmAddShop::stored, this, &frmSettlement::refreshLists);
    openDialog(dialog);
}

void frmSettlement::AddObject_Click()
{
    editor_.addObject();
    auto *dialog = new frmAddItem(editor_, parentWidget());
    connect(dialog, &frmAddItem::stored, this, &frmSettlement::refreshLists);
    openDialog(dialog);
}

// The dialogs stand beside the editor, not inside it, since the editor is
// disabled while one is open.
void frmSettlement::openDialog(SecondaryWindow *dialog)
{
    setEnabled(false);
    connect(dialog, &SecondaryWindow::closed, this, [this] { setEnabled(true); });
    dialog->show();
    dialog->move(geometry().center() - dialog->rect().center());
    dialog->raise();
    dialog->activateWindow();
}

void frmSettlement::cmdClip_Click()
{
    txtClipboard->clear();
    txtClipboard->setPlainText(toQString(editor_.copyShopList()));
}

void frmSettlement::travel(bool asDestination)
{
    const std::optional<int> n = editor_.handOff();
    if (!n) {
        emit travelRequested(QString(), asDestination);
        return;
    }
    const QString text = toQString(settlementBoxText(world_, *n));
    // Closing first lets the main window stay disabled: the route finder
    // opened after the editor's close disables it again.
    close();
    emit travelRequested(text, asDestination);
}

bool frmSettlement::mayClose()
{
    editor_.close(fromQString(SetName->text()), fromQString(SetNum->text()), notesText());
    return true;
}

} // namespace wayscribe
