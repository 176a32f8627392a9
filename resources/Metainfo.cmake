# Writes the software centres' metadata from IN to OUT. With SCREENSHOT_URL,
# the https address docs/screenshots is published at, it lists screenshots of
# the main windows, in English and in Japanese; without it, none.
set(PENWICK_SCREENSHOTS "")
if(SCREENSHOT_URL)
  if(NOT SCREENSHOT_URL MATCHES "^https://")
    message(FATAL_ERROR "PENWICK_SCREENSHOT_URL must be an https address: ${SCREENSHOT_URL}")
  endif()
  string(REGEX REPLACE "/+$" "" base "${SCREENSHOT_URL}")
  # Picture, caption, the caption in Japanese; the first is shown first.
  set(shots
    "list|A month's entries, searched and summed, with its budgets|一か月の記帳を検索・合計し、予算と並べて表示"
    "input|Several entries booked at once|複数の項目をまとめて記帳"
    "pie|Where the money goes|お金の行き先"
    "line-budget|Spending month by month, against the budgets|月ごとの支出と予算"
    "balance|Income and spending, month by month|月ごとの収支"
    "budgets|Monthly budgets per category|分類ごとの月の予算")
  string(APPEND PENWICK_SCREENSHOTS "  <screenshots>\n")
  set(type " type=\"default\"")
  foreach(shot IN LISTS shots)
    string(REPLACE "|" ";" shot "${shot}")
    list(GET shot 0 name)
    list(GET shot 1 caption)
    list(GET shot 2 caption_ja)
    string(APPEND PENWICK_SCREENSHOTS
      "    <screenshot${type}>\n"
      "      <caption>${caption}</caption>\n"
      "      <caption xml:lang=\"ja\">${caption_ja}</caption>\n"
      "      <image>${base}/${name}-en-light.png</image>\n"
      "      <image xml:lang=\"ja\">${base}/${name}-ja-light.png</image>\n"
      "    </screenshot>\n")
    set(type "")
  endforeach()
  string(APPEND PENWICK_SCREENSHOTS "  </screenshots>\n")
endif()
configure_file(${IN} ${OUT} @ONLY)
