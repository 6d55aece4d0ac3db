// Draws the hints on the chip's registers and control words, one picture each, from tables of their bits and rules.

#include <QColor>
#include <QDir>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <span>

#include "tools/hintSheet.h"
#include "tools/sheet.h"

namespace zelvs {

namespace {

enum class Writer { kNobody, kCpu, kChip };

/// Bits that belong together.
struct Field {
  int high, low;
  const char* name;
  Writer writer;
};

/// What a bit means, or what a rule says.
struct Line {
  const char* head;
  const char* text;
};

struct Hint {
  const char* file;
  const char* name;
  const char* title;
  const char* address;
  const char* highByte;
  const char* lowByte;
  std::span<const Field> fields;
  std::span<const Line> meanings;
  std::span<const Line> rules;
  std::span<const char* const> commands = {};
};

constexpr Field kScrFields[] = {
    {15, 14, "", Writer::kNobody},
    {13, 8, "1サイクルの最終局番", Writer::kCpu},
    {7, 6, "", Writer::kNobody},
    {5, 0, "連続の最終局番", Writer::kCpu},
};
constexpr Line kScrMeanings[] = {
    {"5-0", "連続スキャンの最終局番。くり返し 01 からここまで呼ぶ"},
    {"", "0 以外を書くと、次のステップ (1ステップ = 1局) から始まる"},
    {"", "走行中の変更は次のサイクルから。0 はサイクルの終わりで停止"},
    {"13-8", "1サイクルだけのスキャンの最終局番"},
    {"", "0 以外を書くと始まり、終わると QVT60 が 00 に戻す"},
    {"他", "働きはない。書いても 0 のまま"},
};
constexpr Line kScrRules[] = {
    {"書く", "CPU。1サイクルの終わりだけ QVT60 が 00 にする"},
    {"断る", "・上位も下位も 0 以外"},
    {"", "・連続スキャン中に、上位へ 0 以外"},
    {"", "・1サイクルのスキャン中に、どちらかへ 0 以外"},
    {"", "・全2重 (BCR ビット4が1) で、最終局番が 1"},
    {"", "・BCR の全2重/半2重が、基板のジャンパと違う"},
};

constexpr Field kSsrFields[] = {
    {15, 11, "", Writer::kNobody}, {10, 10, "ERR", Writer::kChip}, {9, 9, "SE", Writer::kChip},
    {8, 8, "DI", Writer::kChip},   {7, 7, "RUN", Writer::kChip},   {6, 0, "次に呼ぶ局番", Writer::kChip},
};
constexpr Line kSsrMeanings[] = {
    {"6-0", "次に呼ぶ局番。スキャンしていない時は 0"},
    {"7", "スキャン中は 1"},
    {"8", "そのサイクルで、DRC で選んだ DI が変わった"},
    {"9", "そのサイクルで、シリアルデータの新しい着信があった"},
    {"10", "そのサイクルで、連続1回目から6回目の失敗があった"},
    {"", "(7回目からは数えないので、ここにも出ない)"},
    {"他", "働きはない"},
};
constexpr Line kSsrRules[] = {
    {"書く", "QVT60 だけ。CPU からは読むだけで、書くと断られる"},
    {"更新", "下位は1局ごと、上位はサイクルの終わりごと"},
    {"停止中", "INT0R ビット2で止まっている間は、そのまま変わらない"},
};

constexpr Field kHprFields[] = {
    {15, 13, "", Writer::kNobody}, {12, 12, "WR", Writer::kCpu},  {11, 9, "", Writer::kNobody},
    {8, 8, "WBUF", Writer::kChip}, {7, 5, "", Writer::kNobody},   {4, 4, "RD", Writer::kCpu},
    {3, 1, "", Writer::kNobody},   {0, 0, "RBUF", Writer::kChip},
};
constexpr Line kHprMeanings[] = {
    {"0", "1 = リードテンポラリバッファに、まだ読まれていない半分がある"},
    {"4", "1 でリードのハザードプロテクトを使う"},
    {"8", "1 = ライトテンポラリバッファに、先に書かれた半分がある"},
    {"12", "1 でライトのハザードプロテクトを使う"},
    {"他", "働きはない"},
};
constexpr Line kHprRules[] = {
    {"書く", "CPU はビット4と12だけ。ビット0と8は QVT60。スキャン中も可"},
    {"対象", "8ビットバスの時だけ。リードは CPU が出した番地で 080H から 4FFH、"},
    {"", "ライトはエンディアンで並べかえたあとの番地で 080H から 4FEH"},
    {"リード", "1回目でワードごとバッファに取り、その半分を返す"},
    {"", "2回目はどの番地でもバッファから返し、バッファは空になる"},
    {"ライト", "1回目はバッファに入るだけ。2回目の書き込みで、"},
    {"", "バッファの半分も、2回目の番地のワードに入る"},
};

constexpr Field kInt0Fields[] = {
    {15, 15, "END", Writer::kCpu}, {14, 14, "CHK2", Writer::kCpu}, {13, 13, "CHK1", Writer::kCpu},
    {12, 12, "SE", Writer::kCpu},  {11, 11, "CYC", Writer::kCpu},  {10, 10, "HALT", Writer::kCpu},
    {9, 9, "DI-C", Writer::kCpu},  {8, 8, "DI", Writer::kCpu},     {7, 7, "END", Writer::kChip},
    {6, 6, "CHK2", Writer::kChip}, {5, 5, "CHK1", Writer::kChip},  {4, 4, "SE", Writer::kChip},
    {3, 3, "CYC", Writer::kChip},  {2, 2, "HALT", Writer::kChip},  {1, 1, "DI-C", Writer::kChip},
    {0, 0, "DI", Writer::kChip},
};
constexpr Line kInt0Meanings[] = {
    {"0", "DRC で選んだ DI が変わった。見つけたその場で立つ"},
    {"1", "そのサイクルで、DRC で選んだ DI が変わった"},
    {"2", "同上。このビットが立っている間、スキャンが止まる"},
    {"3", "サイクルが終わった"},
    {"4", "そのサイクルで、シリアルデータの新しい着信があった"},
    {"", "(前のサイクルに DI の変化 (SSR ビット8) があると立たない)"},
    {"5", "そのサイクルで、C1CR が数えた"},
    {"6", "そのサイクルで、C2CR が数えた"},
    {"7", "スキャンが終わった"},
};
constexpr Line kInt0Rules[] = {
    {"許可", "上位は下位の同じ要因の許可。要因が起きた時に 1 なら立つ"},
    {"", "あとで許可を 0 にしても、立ったビットは残る"},
    {"消す", "CPU が 1 を書いた下位のビットだけ消える。スキャン中も可"},
    {"信号", "下位のどれかが立っていれば、INT0 の線が出る"},
    {"時期", "ビット1から6はサイクルの終わりに立つ"},
};

constexpr Field kInt1Fields[] = {
    {15, 15, "END", Writer::kCpu}, {14, 14, "CHK2", Writer::kCpu}, {13, 13, "CHK1", Writer::kCpu},
    {12, 12, "SE", Writer::kCpu},  {11, 11, "CYC", Writer::kCpu},  {10, 8, "", Writer::kNobody},
    {7, 7, "END", Writer::kChip},  {6, 6, "CHK2", Writer::kChip},  {5, 5, "CHK1", Writer::kChip},
    {4, 4, "SE", Writer::kChip},   {3, 3, "CYC", Writer::kChip},   {2, 0, "", Writer::kNobody},
};
constexpr Line kInt1Meanings[] = {
    {"3", "サイクルが終わった"},
    {"4", "そのサイクルで、シリアルデータの新しい着信があった"},
    {"", "(前のサイクルに DI の変化 (SSR ビット8) があると立たない)"},
    {"5", "そのサイクルで、C1CR が数えた"},
    {"6", "そのサイクルで、C2CR が数えた"},
    {"7", "スキャンが終わった"},
    {"他", "働きはない。許可 (8から10) は書いても 0 のまま"},
};
constexpr Line kInt1Rules[] = {
    {"許可", "上位は下位の同じ要因の許可。要因が起きた時に 1 なら立つ"},
    {"", "あとで許可を 0 にしても、立ったビットは残る"},
    {"消す", "CPU が 1 を書いた下位のビットだけ消える。スキャン中も可"},
    {"信号", "下位のどれかが立っていれば、INT1 の線が出る"},
    {"時期", "ビット3から6はサイクルの終わりに立つ"},
};

constexpr Field kC1Fields[] = {
    {15, 8, "", Writer::kNobody},
    {7, 0, "失敗が始まった回数", Writer::kChip},
};
constexpr Line kC1Meanings[] = {
    {"7-0", "失敗が始まった回数。255 (FF) で止まる"},
    {"", "ある局の失敗の回数が 0 から 1 になるたびに、1 増える"},
    {"", "失敗し続けている局は、もう数えない"},
    {"", "正しい答えのあとで再び失敗すると、また数える"},
    {"他", "働きはない"},
};
constexpr Line kC1Rules[] = {
    {"消す", "CPU がビット0に 1 を書くと 00 になる。スキャン中も可"},
    {"", "ビット0が 0 なら何も起きない。上位に書いても同じ"},
    {"LED", "数えると Chk1 が光る。最後に数えてから 5000 ステップ"},
    {"", "(1ステップ = 1局)、RUN なら約1.5秒で消える"},
    {"割込", "INT0R と INT1R のビット5の要因になる"},
};

constexpr Field kC2Fields[] = {
    {15, 8, "", Writer::kNobody},
    {7, 0, "3回続いた失敗の回数", Writer::kChip},
};
constexpr Line kC2Meanings[] = {
    {"7-0", "3回続いた失敗の回数。255 (FF) で止まる"},
    {"", "ある局の失敗の回数が 2 から 3 になるたびに、1 増える"},
    {"", "4回目からは、もう数えない"},
    {"", "正しい答えのあとで再び3回失敗すると、また数える"},
    {"他", "働きはない"},
};
constexpr Line kC2Rules[] = {
    {"消す", "CPU がビット0に 1 を書くと 00 になる。スキャン中も可"},
    {"", "ビット0が 0 なら何も起きない。上位に書いても同じ"},
    {"LED", "数えると Chk2 が光る。最後に数えてから 5000 ステップ"},
    {"", "(1ステップ = 1局)、RUN なら約1.5秒で消える"},
    {"割込", "INT0R と INT1R のビット6の要因になる"},
};

constexpr Field kBcrFields[] = {
    {15, 11, "", Writer::kNobody}, {10, 8, "保持", Writer::kCpu}, {7, 5, "", Writer::kNobody},
    {4, 4, "F/H", Writer::kCpu},   {3, 2, "", Writer::kNobody},   {1, 0, "速度", Writer::kCpu},
};
constexpr Line kBcrMeanings[] = {
    {"1-0", "通信速度。スキャンが始まる時に取り込まれる"},
    {"", "3 = 48MHz   2 = 24MHz   1 = 12MHz"},
    {"", "0 には、12MHz で BPSS-H の Board-5 だけが答える"},
    {"", "速度の合わない基板は、呼ばれても答えない"},
    {"4", "1 = 全2重   0 = 半2重。基板のジャンパに合わせる"},
    {"10-8", "書いた値が残るだけで、働きはない"},
    {"他", "働きはない。書いても 0 のまま"},
};
constexpr Line kBcrRules[] = {
    {"書く", "CPU だけ。スキャン中は書けない (ライトプロテクト)"},
    {"警告", "下位を書いてビット4がジャンパと違うと、警告が出る"},
    {"", "値は残るが、合わせるまで SCR に書けない"},
    {"初期値", "全2重 0013H、半2重 0003H"},
    {"", "センターボードの RESET では、いつも 0013H"},
};

constexpr Field kControlFields[] = {
    {15, 15, "", Writer::kNobody},   {14, 12, "失敗の回数", Writer::kChip}, {11, 11, "3回", Writer::kChip},
    {10, 10, "失敗", Writer::kChip}, {9, 9, "DI", Writer::kChip},           {8, 8, "SE", Writer::kChip},
    {7, 6, "保持", Writer::kCpu},    {5, 4, "巡回", Writer::kCpu},          {3, 0, "指令", Writer::kCpu},
};
constexpr const char* kCommandNames[] = {
    "0 DI",     "1 C1",     "2 C2",     "3 C3",     "4 C4",     "5 C5",     "6 C6",     "7 シリアル",
    "8 DI 1回", "9 C1消去", "A C2消去", "B C3消去", "C C4消去", "D C5消去", "E C6消去", "F シリアル",
};
constexpr Line kControlMeanings[] = {
    {"3-0", "答えの番地: 局番×2 + DI 100H、C1 180H … C6 400H、シリアル 480H"},
    {"5-4", "0 から 6 の進め方 (7 から F は、答えが来たら 0 に戻る)"},
    {"", "0 = そのまま　1 = 答えのあと 0 に戻る"},
    {"", "2 = 6 まで進んでくり返す　3 = 6 まで進んで 0 に戻る"},
    {"7-6", "書いた値が残るだけで、働きはない"},
    {"8", "読まれていないシリアルデータがある"},
    {"9", "最後の答えで、DRC で選んだ DI が変わった"},
    {"11-10", "ビット10: 失敗があった　ビット11: 3回以上続けて失敗した"},
    {"14-12", "続けて失敗した回数。7 で止まる"},
};
constexpr Line kControlRules[] = {
    {"更新", "正しい答えで失敗の印は消える。失敗では指令は変わらない"},
    {"SSB", "L の基板では、失敗のあと最初の DI の答えは取り込まれない"},
    {"保護", "スキャン中は上位を書かない。ワードでは下位だけが入る"},
    {"対象", "Board-5 は DI だけ。ほかの指令には 0 を答える"},
};

constexpr Hint kHints[] = {
    {"SCR.BMP", "SCR", "スキャンの開始と停止", "580H", "上位バイト: 1サイクルのスキャン", "下位バイト: 連続スキャン",
     kScrFields, kScrMeanings, kScrRules},
    {"SSR.BMP", "SSR", "スキャンの状態", "582H", "上位バイト: 終わったサイクル", "下位バイト: 今", kSsrFields,
     kSsrMeanings, kSsrRules},
    {"HPR.BMP", "HPR", "ハザードプロテクト", "584H", "上位バイト: ライト側", "下位バイト: リード側", kHprFields,
     kHprMeanings, kHprRules},
    {"INT0R.BMP", "INT0R", "割り込み 0 の許可と状態", "586H", "上位バイト: 許可", "下位バイト: 状態", kInt0Fields,
     kInt0Meanings, kInt0Rules},
    {"INT1R.BMP", "INT1R", "割り込み 1 の許可と状態", "588H", "上位バイト: 許可", "下位バイト: 状態", kInt1Fields,
     kInt1Meanings, kInt1Rules},
    {"BCR.BMP", "BCR", "通信速度と全2重/半2重", "58EH", "上位バイト", "下位バイト", kBcrFields, kBcrMeanings,
     kBcrRules},
    {"CONTROL.BMP", "コントロールワード", "局ごとの指令と報告", "局番×2 (002H-07EH)", "上位バイト: QVT60 の報告",
     "下位バイト: CPU の指令", kControlFields, kControlMeanings, kControlRules, kCommandNames},
    {"C1CR.BMP", "C1CR", "チェックカウンタ 1", "58AH", "上位バイト", "下位バイト", kC1Fields, kC1Meanings, kC1Rules},
    {"C2CR.BMP", "C2CR", "チェックカウンタ 2", "58CH", "上位バイト", "下位バイト", kC2Fields, kC2Meanings, kC2Rules},
};

constexpr int kMargin = 12;
constexpr int kHeadHeight = 32;
constexpr int kNumberTop = 37;
constexpr int kBoxTop = 50;
constexpr int kBoxHeight = 24;
constexpr int kBoxWidth = 28;
constexpr int kByteGap = 8;
constexpr int kRowHeight = 17;
constexpr int kWideRowHeight = 20;
constexpr int kBadgeHeight = 14;
constexpr int kTextLeft = 62;
constexpr int kLegendTop = kHintHeight - 18;
constexpr int kRulePadding = 5;

const QColor kHeadColour(0x1d, 0x4e, 0x79);
const QColor kInk(0x20, 0x28, 0x30);
const QColor kFaint(0x6c, 0x76, 0x80);
const QColor kRuler(0xe4, 0xe8, 0xec);
const QColor kRuleInk(0x8a, 0x5a, 0x00);

struct Look {
  QColor fill, edge;
  const char* legend;
};

/// Index: Writer.
const Look kLooks[] = {
    {QColor(0xec, 0xee, 0xf0), QColor(0xc4, 0xca, 0xd0), "働きのないビット"},
    {QColor(0xd6, 0xe7, 0xf9), QColor(0x74, 0x9c, 0xc8), "CPU が書く"},
    {QColor(0xdc, 0xf1, 0xda), QColor(0x7f, 0xb5, 0x7c), "QVT60 が書く"},
};

const Look& lookOf(Writer writer) {
  return kLooks[static_cast<int>(writer)];
}

class Card {
 public:
  Card() : image_(kHintWidth, kHintHeight, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
  }

  void draw(const Hint& hint) {
    drawHead(hint);
    drawBits(hint);
    int top = kBoxTop + kBoxHeight + 20;
    if (!hint.commands.empty()) top = drawCommands(hint.commands, top);
    const int ruleTop = drawRules(hint.rules);
    drawMeanings(hint, top, ruleTop - 4);
    drawLegend();
  }

  /// False when something did not fit or could not be written.
  bool save(const QDir& folder, const Hint& hint) {
    painter_.end();
    if (!complaint_.isEmpty()) std::fprintf(stderr, "%s: %s\n", hint.file, qPrintable(complaint_));
    return complaint_.isEmpty() && sheet::save(image_, folder.filePath(hint.file));
  }

 private:
  void complain(const QString& what) {
    if (complaint_.isEmpty()) complaint_ = what;
  }

  /// One line of text inside a rectangle, in the middle of its height.
  void text(const QRect& place, int flags, const char* words, int size, const QColor& colour, bool bold = false) {
    const QFont font = sheet::font(size, bold);
    const QString line = QString::fromUtf8(words);
    if (QFontMetrics(font).horizontalAdvance(line) > place.width()) complain("no room for " + line);
    painter_.setFont(font);
    painter_.setPen(colour);
    painter_.drawText(place, flags | Qt::AlignVCenter, line);
  }

  void box(const QRect& place, const QColor& fill, const QColor& edge) {
    painter_.fillRect(place, fill);
    painter_.setPen(edge);
    painter_.drawRect(place.adjusted(0, 0, -1, -1));
  }

  void drawHead(const Hint& hint) {
    painter_.fillRect(0, 0, kHintWidth, kHeadHeight, kHeadColour);
    const QRect line(kMargin, 0, kHintWidth - 2 * kMargin, kHeadHeight);
    text(line, Qt::AlignLeft, hint.name, 18, Qt::white, true);
    const int nameWidth = QFontMetrics(sheet::font(18, true)).horizontalAdvance(QString::fromUtf8(hint.name));
    text(line.adjusted(nameWidth + 12, 2, 0, 0), Qt::AlignLeft, hint.title, 12, QColor(0xd4, 0xe4, 0xf4));
    text(line.adjusted(0, 2, 0, 0), Qt::AlignRight, hint.address, 12, Qt::white, true);
  }

  static int leftOf(int bit) { return kMargin + (15 - bit) * kBoxWidth + (bit < 8 ? kByteGap : 0); }

  void drawBits(const Hint& hint) {
    for (int bit = 0; bit < 16; ++bit) {
      text({leftOf(bit), kNumberTop, kBoxWidth, kBoxTop - kNumberTop}, Qt::AlignHCenter,
           qPrintable(QString::number(bit)), 10, kFaint);
    }
    int next = 15;
    for (const Field& field : hint.fields) {
      if (field.high != next || field.low > field.high) complain("the fields do not follow each other");
      next = field.low - 1;
      const Look& look = lookOf(field.writer);
      const int left = leftOf(field.high);
      // Edges of neighbours lie on each other.
      const QRect place(left, kBoxTop, leftOf(field.low) + kBoxWidth + 1 - left, kBoxHeight);
      box(place, look.fill, look.edge);
      painter_.setPen(look.edge);
      for (int bit = field.high - 1; bit >= field.low; --bit)
        painter_.drawLine(leftOf(bit), kBoxTop + kBoxHeight - 4, leftOf(bit), kBoxTop + kBoxHeight - 2);
      text(place.adjusted(0, 0, 0, -2), Qt::AlignHCenter, field.name, 11, kInk);
    }
    if (next != -1) complain("the fields do not end at bit 0");
    const QSize byte(8 * kBoxWidth, 14);
    text({QPoint(leftOf(15), kBoxTop + kBoxHeight), byte}, Qt::AlignHCenter, hint.highByte, 10, kFaint);
    text({QPoint(leftOf(7), kBoxTop + kBoxHeight), byte}, Qt::AlignHCenter, hint.lowByte, 10, kFaint);
  }

  int drawCommands(std::span<const char* const> commands, int top) {
    constexpr int kColumns = 8;
    constexpr int kCellHeight = 17;
    constexpr int kCellWidth = (kHintWidth - 2 * kMargin) / kColumns;
    const Look& look = lookOf(Writer::kCpu);
    int i = 0;
    for (const char* command : commands) {
      const QRect place(kMargin + i % kColumns * kCellWidth, top + i / kColumns * kCellHeight, kCellWidth + 1,
                        kCellHeight + 1);
      box(place, i / kColumns % 2 == 0 ? look.fill : QColor(0xea, 0xf3, 0xfc), look.edge);
      text(place.adjusted(3, 0, 0, 0), Qt::AlignLeft, command, 10, kInk);
      ++i;
    }
    return top + (i + kColumns - 1) / kColumns * kCellHeight + 4;
  }

  /// What the bits mean, spread over the room there is. A line stands between any two meanings.
  void drawMeanings(const Hint& hint, int top, int bottom) {
    const int count = static_cast<int>(hint.meanings.size());
    const int height = std::min(kWideRowHeight, (bottom - top) / count);
    if (height < kRowHeight - 1) complain("too many lines");
    for (const Line& line : hint.meanings) {
      if (*line.head != 0) {
        const Look& look = lookOf(writerOf(hint.fields, line.head));
        painter_.setPen(kRuler);
        if (&line != hint.meanings.data()) painter_.drawLine(kMargin, top, kHintWidth - kMargin, top);
        const QRect place(kMargin, top + (height - kBadgeHeight) / 2 + 1, kTextLeft - kMargin - 8, kBadgeHeight);
        box(place, look.fill, look.edge);
        // Ideographs reach lower than digits do: what is centred by the font looks low.
        text(place.adjusted(0, -2, 0, 0), Qt::AlignHCenter, line.head, 11, kInk);
      }
      drawText(line.text, top, height);
      top += height;
    }
  }

  /// The writer of the bit that a head begins with; a head without a number is about the bits without a function.
  static Writer writerOf(std::span<const Field> fields, const char* head) {
    const int bit = QString::fromUtf8(head).section('-', 0, 0).toInt();
    if (*head < '0' || *head > '9') return Writer::kNobody;
    return std::find_if(fields.begin(), fields.end(), [bit](const Field& field) { return bit >= field.low; })->writer;
  }

  void drawText(const char* words, int top, int height) {
    text({kTextLeft, top, kHintWidth - kMargin - kTextLeft + 6, height}, Qt::AlignLeft, words, 12, kInk);
  }

  /// The rules stand at the bottom; the result is their upper edge.
  int drawRules(std::span<const Line> rules) {
    const int height = static_cast<int>(rules.size()) * kRowHeight + 2 * kRulePadding;
    const int top = kLegendTop - 4 - height;
    box({kMargin - 6, top, kHintWidth - 2 * kMargin + 12, height}, QColor(0xff, 0xfa, 0xe8), QColor(0xe3, 0xd6, 0xa4));
    int row = top + kRulePadding;
    for (const Line& rule : rules) {
      text({kMargin, row, kTextLeft - kMargin - 2, kRowHeight}, Qt::AlignLeft, rule.head, 12, kRuleInk, true);
      drawText(rule.text, row, kRowHeight);
      row += kRowHeight;
    }
    return top;
  }

  void drawLegend() {
    int left = kMargin;
    for (const Writer writer : {Writer::kCpu, Writer::kChip, Writer::kNobody}) {
      const Look& look = lookOf(writer);
      box({left, kLegendTop + 2, 12, 10}, look.fill, look.edge);
      text({left + 17, kLegendTop, 110, 14}, Qt::AlignLeft, look.legend, 10, kFaint);
      left += 110;
    }
  }

  QImage image_;
  QPainter painter_;
  QString complaint_;
};

}  // namespace

}  // namespace zelvs

int main(int count, char** arguments) {
  const QGuiApplication application(count, arguments);
  if (count != 2) {
    std::fprintf(stderr, "usage: zelvs-draw-hints FOLDER\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(arguments[1]));
  if (!folder.mkpath(".")) return 1;
  bool good = true;
  for (const zelvs::Hint& hint : zelvs::kHints) {
    zelvs::Card card;
    card.draw(hint);
    good = card.save(folder, hint) && good;
  }
  return good ? 0 : 1;
}
