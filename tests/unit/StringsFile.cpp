#include "StringsFile.h"

#include <memory>
#include <stdexcept>
#include <string_view>

#include <glib.h>

#include "TemporaryFolder.h"

namespace orv {
namespace {

using trxtest::ReadBytes;

constexpr std::string_view kCommentBegins = "<!-- ";
constexpr std::string_view kCommentEnds = " -->";

struct Reading {
  std::vector<StringsEntry> entries;
  std::string comment;
  bool awaitsText = false;  // a key has been read, its text has not
};

void Refuse(GError **error, const std::string &what) {
  g_set_error(error, G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, "%s", what.c_str());
}

void OnElement(GMarkupParseContext *context, const gchar *name, const gchar **, const gchar **,
               gpointer data, GError **error) {
  Reading &reading = *static_cast<Reading *>(data);
  const guint depth =
      g_slist_length(const_cast<GSList *>(g_markup_parse_context_get_element_stack(context)));
  const std::string_view element = name;
  if (depth == 1 && element == "plist") return;
  if (depth == 2 && element == "dict") return;
  if (depth == 3 && element == "key" && !reading.awaitsText) {
    reading.entries.push_back({reading.comment, "", ""});
    reading.comment.clear();
    reading.awaitsText = true;
    return;
  }
  if (depth == 3 && element == "string" && reading.awaitsText) {
    reading.awaitsText = false;
    return;
  }
  Refuse(error, "unexpected element " + std::string(element));
}

void OnText(GMarkupParseContext *context, const gchar *text, gsize length, gpointer data,
            GError **error) {
  Reading &reading = *static_cast<Reading *>(data);
  const std::string_view element = g_markup_parse_context_get_element(context);
  const std::string_view characters(text, length);
  if (element == "key") {
    reading.entries.back().key += characters;
  } else if (element == "string") {
    reading.entries.back().text += characters;
  } else if (characters.find_first_not_of("\t\n") != std::string_view::npos) {
    Refuse(error, "text between the elements");
  }
}

// Comments, and what comes before the root.
void OnOther(GMarkupParseContext *, const gchar *text, gsize length, gpointer data, GError **) {
  std::string_view characters(text, length);
  if (!characters.starts_with(kCommentBegins) || !characters.ends_with(kCommentEnds)) return;
  characters.remove_prefix(kCommentBegins.size());
  characters.remove_suffix(kCommentEnds.size());
  static_cast<Reading *>(data)->comment += characters;
}

struct FreeContext {
  void operator()(GMarkupParseContext *context) const { g_markup_parse_context_free(context); }
};

}  // namespace

std::vector<StringsEntry> ReadStringsFile(const std::string &path) {
  const GMarkupParser parser = {OnElement, nullptr, OnText, OnOther, nullptr};
  Reading reading;
  const std::unique_ptr<GMarkupParseContext, FreeContext> context(
      g_markup_parse_context_new(&parser, G_MARKUP_DEFAULT_FLAGS, &reading, nullptr));
  const std::string contents = ReadBytes(path);
  GError *error = nullptr;
  if (!g_markup_parse_context_parse(context.get(), contents.data(),
                                    static_cast<gssize>(contents.size()), &error) ||
      !g_markup_parse_context_end_parse(context.get(), &error)) {
    const std::string what = path + ": " + error->message;
    g_error_free(error);
    throw std::runtime_error(what);
  }
  return reading.entries;
}

}  // namespace orv
