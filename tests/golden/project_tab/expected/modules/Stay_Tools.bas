Option Explicit
Function Nights(dtmFrom, dtmTo)
    Nights = dtmTo - dtmFrom
End Function

