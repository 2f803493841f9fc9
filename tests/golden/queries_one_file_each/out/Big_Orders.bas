an older conversion
