<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ also changes the colors of the screens, so it may interfere with %1$@: each program can undo what the other one does. It is best to use only one of them at a time.</translation>
        </message>
    </context>
</TS>
