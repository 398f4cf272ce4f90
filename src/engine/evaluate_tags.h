// The tag expression evaluator: a text rewriter. It takes complete function tags out of a code text
// and puts their values in, innermost first, until none is left. There is no syntax tree, no error
// report and no way of quoting a "|" or a "<".
#pragma once

#include "engine/evaluation_context.h"
#include "platform/text.h"

namespace vorlane {

// The rewritten code. `path` is the entry's folder with its trailing separator, `defaultText` what
// an empty first field of "<MID>" or "<REPLACE>" means.
//
// Everything that isn't a complete function tag stays where it is: words, unknown tags, tags in
// another case, closing tags without an opening one. An opening tag that is never closed vanishes.
// Never fails: a step that fails is abandoned and the next one runs; a tag that gets no value that
// way takes the value of the tag evaluated before it.
//
// Yields once for each closing tag examined. Always ends: a code that rewrites itself for ever is
// returned as it stands, once a whole pass over the tags changes nothing, or when the evaluation
// has taken 10,000 passes or 64 million characters of code in all, or its code is longer than
// LongestText. A replacement that would make it so is left out.
Text EvaluateTags(TextView code, TextView path, TextView fileName, TextView defaultText,
                  EvaluationContext& context);

}  // namespace vorlane
