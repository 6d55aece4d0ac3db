#include "chip/answer.h"

#include <array>
#include <cstddef>

namespace zelvs {

namespace {

constexpr std::string_view kNoScanWillStart =
    "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n"
    "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。";

struct AnswerRow {
  Answer answer;
  bool inBox;
  std::string_view words;
};

// Some end in a full stop and some do not: each stands as its window says it.
constexpr std::array<AnswerRow, 13> kAnswers = {{
    {Answer::Ok, false, ""},
    {Answer::Held, false, "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。"},
    {Answer::ReportKept, false, "スキャン中、コントロールワードの上位バイトはライトプロテクト。"},
    {Answer::BcrMismatch, true, kNoScanWillStart},
    {Answer::ReportProtected, false, "スキャン中、コントロールワードの上位バイトはライトプロテクト"},
    {Answer::FetchedProtected, false, "スキャン中はライトプロテクト"},
    {Answer::RegisterProtected, false, "スキャン中はライトプロテクト。"},
    {Answer::ReadOnlyRegister, false, "このレジスタはリードオンリーです。"},
    {Answer::ReadOnlyArea, false, "この番地には書き込めません。"},
    {Answer::BadValue, false, "入力された値が不適切であるため、書き込まれません。"},
    {Answer::ScrWordMismatch, true,
     "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n"
     "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。"},
    {Answer::ScrLowMismatch, true,
     "通信設定がハードウェア設定と一致していません。\r\n\r\n"
     "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。"},
    {Answer::ScrHighMismatch, true, kNoScanWillStart},
}};

// Index: ReadFrom.
constexpr std::array<std::string_view, 3> kSources = {{
    "メモリよりデータを取得しました。",
    "リードテンポラリバッファにデータを格納しました。",
    "リードテンポラリバッファからデータを取得しました。",
}};

constexpr bool inOrder() {
  std::size_t at = 0;
  for (const AnswerRow& row : kAnswers)
    if (static_cast<std::size_t>(row.answer) != at++) return false;
  return true;
}
static_assert(inOrder());

const AnswerRow& rowOf(Answer answer) {
  return kAnswers[static_cast<std::size_t>(answer)];
}

}  // namespace

std::string_view wordsOf(Answer answer) {
  return rowOf(answer).words;
}

std::string_view wordsOf(ReadFrom source) {
  return kSources[static_cast<std::size_t>(source)];
}

bool toldInBox(Answer answer) {
  return rowOf(answer).inBox;
}

}  // namespace zelvs
