<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of trouble</nm>
  <au>Kestrav</au>
  <intro>What is said here holds only in the measure in which nothing else in the chart speaks against it.</intro>
  <yg>
    <op>1</op>
    <tl>Moon in a dusthana under malefics</tl>
    <rl>InHouse,,Moo,dus\Influences,,any.Sun+Mar+Sat,Moo\Influences,,no.Mer+Jup+Ven,Moo</rl>
    <in>Delicate health in childhood; the mind is easily burdened.</in>
    <cm>Brihat Jataka, chapter 6 (early danger).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon hemmed between malefics</tl>
    <rl>Hemmed,,Moo,Mar+Sat+Rah+Ket\Influences,,no.Mer+Jup+Ven,Moo</rl>
    <in>Anxiety and pressure from both sides; rest must be sought on purpose.</in>
    <cm>Brihat Jataka, chapter 6 (early danger).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Papa Kartari</tl>
    <rl>Hemmed,,Asc,Sun+Mar+Sat\InHouse,,no.Mer+Jup+Ven,2,12</rl>
    <in>Health and freedom of action are hemmed in; obstacles come in pairs.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in the ascendant and the seventh</tl>
    <rl>InHouse,,any.Sun+Mar+Sat,1\InHouse,,any.Sun+Mar+Sat,7\InHouse,,no.Mer+Jup+Ven,ken</rl>
    <in>Strain between self and others; health needs care.</in>
    <cm>Brihat Jataka, chapter 6 (early danger).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in the sixth, eighth and twelfth</tl>
    <rl>Occupied,,Sun+Mar+Sat,3,3,dus</rl>
    <in>Three kinds of trouble at once: enemies, danger and loss. A strong lord of the ascendant is needed.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Waning Moon in the ascendant with malefics in kendra and eighth</tl>
    <rl>InHouse,,Moo,1\Paksha,,wane\InHouse,,any.Mar+Sat,4,7,8,10</rl>
    <in>A weak start of life; moods go with the company.</in>
    <cm>Brihat Jataka, chapter 6 (early danger).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the ascendant in the eighth under malefics</tl>
    <rl>InHouse,,L1,8\Influences,,any.Sun+Mar+Sat,L1\Influences,,no.Mer+Jup+Ven,L1</rl>
    <in>Health and purpose are tested by crises.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on evils at birth.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 1 and 8 together in a dusthana</tl>
    <rl>With,,L1,L8\InHouse,,L1,dus</rl>
    <in>Longevity and health ask for care; deep changes in life.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon in gandanta</tl>
    <rl>Gandanta,,Moo</rl>
    <in>Born on a knot of signs and stars; a tense beginning, for which the old books ask for rites.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ascendant in gandanta</tl>
    <rl>Gandanta,,Asc</rl>
    <in>The body is tied to a knot of the zodiac; the early years are delicate.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Arishta Bhanga by Jupiter</tl>
    <rl>InHouse,,Jup,1\Dignity,!,Jup,deb\Retrograde,!,Jup</rl>
    <in>Jupiter in the ascendant dispels many evils, as the books say, like one lamp the dark.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on cancellation of evils.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Arishta Bhanga by the lord of the ascendant</tl>
    <rl>InHouse,,L1,ken\DignityMin,,L1,fri\Influences,,any.Mer+Jup+Ven,L1\Influences,,no.Sun+Mar+Sat,L1</rl>
    <in>A strong lord of the ascendant with good company guards health and life.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on cancellation of evils.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Arishta Bhanga by birth time</tl>
    <rl>Paksha,,wax\DayBirth,,night\OR\Paksha,,wane\DayBirth</rl>
    <in>Night birth under a waxing Moon, or day birth under a waning one, softens the dangers the Moon shows.</in>
    <cm>Saravali, chapter on cancellation of evils.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sun and Rahu or Ketu</tl>
    <rl>With,,Sun,any.nod</rl>
    <in>Confidence is shadowed; relations with father and authority are not simple.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon and Rahu or Ketu</tl>
    <rl>With,,Moo,any.nod</rl>
    <in>A vivid, troubled imagination; the mind needs quiet.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Eclipse near the Sun</tl>
    <rl>With,,Sun,Moo\(\Near,,Sun,Rah,15\OR\Near,,Sun,Ket,15\)</rl>
    <in>Born near a solar eclipse: inner light is found by own search.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Guru Chandala</tl>
    <rl>With,,Jup,Rah</rl>
    <in>Unusual beliefs; advice and teachers have to be tested.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Angaraka</tl>
    <rl>With,,Mar,Rah</rl>
    <in>Sudden anger and risk; energy without measure.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shrapita</tl>
    <rl>With,,Sat,Rah</rl>
    <in>Old burdens delay what is begun; patience pays.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vish</tl>
    <rl>With,,Moo,Sat</rl>
    <in>A sober, heavy mind; feelings are held back and comfort comes late.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Yama</tl>
    <rl>Mutual,,Mar,Sat</rl>
    <in>Haste and delay oppose each other; strife in work, injuries by tools.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Avayoga</tl>
    <rl>InHouse,,L1,dus</rl>
    <in>Fame does not last; weak health and changes of place.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mriti</tl>
    <rl>InHouse,,L3,dus</rl>
    <in>Beaten by rivals, without support of brothers.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kuhu</tl>
    <rl>InHouse,,L4,dus</rl>
    <in>Without a quiet home, mother or vehicles for a time.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pamara</tl>
    <rl>InHouse,,L5,dus</rl>
    <in>Trouble about children; unwise talk.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dushkriti</tl>
    <rl>InHouse,,L7,dus</rl>
    <in>Partings and far journeys; blame on account of partners.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Nirbhagya</tl>
    <rl>InHouse,,L9,dus</rl>
    <in>Inherited goods are lost, elders are not heeded.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Duryoga</tl>
    <rl>InHouse,,L10,dus</rl>
    <in>Effort bears little fruit; far from home for a living.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Arishta</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Nihsva</tl>
    <rl>InHouse,,L2,dus</rl>
    <in>Little means, bad company and plain speech.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Daridra</tl>
    <rl>InHouse,,L11,dus</rl>
    <in>Debts and lack; gains are spent before they come.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 1 and 12 exchanged with a maraka</tl>
    <rl>Parivartana,,dainya,1,12\Influences,,any.mrkL,L1</rl>
    <in>Means flow away; health and savings suffer together.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for penury.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 1 and 6 exchanged with a maraka</tl>
    <rl>Parivartana,,dainya,1,6\Influences,,any.mrkL,L1</rl>
    <in>Debts and disputes eat up the means.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for penury.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the ascendant in a dusthana with malefics and a maraka</tl>
    <rl>InHouse,,L1,dus\Influences,,any.Sun+Mar+Sat,L1\Influences,,any.mrkL,L1</rl>
    <in>Even one of good family may come to want; thrift is the remedy.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for penury.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 5 and 9 in dusthanas</tl>
    <rl>InHouse,,L5,6,12\InHouse,,L9,6,12\Influences,,any.mrkL,L5</rl>
    <in>Luck and foresight fail at the wrong time.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for penury, in a simplified form.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 2 and 11 with the lords of dusthanas</tl>
    <rl>Related,,L2,any.dusL\Related,,L11,any.dusL</rl>
    <in>Savings and income are both tied to losses.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in 2 and 12 of the Moon alone</tl>
    <rl>Hemmed,,Moo,Sun+Mar+Sat\InHouse,,no.Mer+Jup+Ven,ken</rl>
    <in>Little help and many costs.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Debilitated lords of 2 and 11</tl>
    <rl>Dignity,,L2,deb\OR\Dignity,,L11,deb</rl>
    <in>Income or savings rest on weak ground.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Daridra</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ananta Kala Sarpa</tl>
    <rl>InHouse,,Rah,1\Between,,all.pla,Rah,Ket</rl>
    <in>Self-assertion and marriage pull against each other; own effort carries the first half of life.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kulika Kala Sarpa</tl>
    <rl>InHouse,,Rah,2\Between,,all.pla,Rah,Ket</rl>
    <in>Speech, family and money bring tension; savings come late.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vasuki Kala Sarpa</tl>
    <rl>InHouse,,Rah,3\Between,,all.pla,Rah,Ket</rl>
    <in>Relations with brothers and sisters and courage are tried.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shankhapala Kala Sarpa</tl>
    <rl>InHouse,,Rah,4\Between,,all.pla,Rah,Ket</rl>
    <in>Home and mother are left or lost for a time; property brings worry.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Padma Kala Sarpa</tl>
    <rl>InHouse,,Rah,5\Between,,all.pla,Rah,Ket</rl>
    <in>Worry about children or studies; the mind broods.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mahapadma Kala Sarpa</tl>
    <rl>InHouse,,Rah,6\Between,,all.pla,Rah,Ket</rl>
    <in>Rivals and illness are many, and in the end overcome.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Takshaka Kala Sarpa</tl>
    <rl>InHouse,,Rah,7\Between,,all.pla,Rah,Ket</rl>
    <in>Partnership brings sudden turns; trust needs time.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Karkotaka Kala Sarpa</tl>
    <rl>InHouse,,Rah,8\Between,,all.pla,Rah,Ket</rl>
    <in>Sudden breaks, inheritance in dispute, interest in hidden things.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shankhachuda Kala Sarpa</tl>
    <rl>InHouse,,Rah,9\Between,,all.pla,Rah,Ket</rl>
    <in>Fortune comes and goes; quarrels with elders or faith.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ghataka Kala Sarpa</tl>
    <rl>InHouse,,Rah,10\Between,,all.pla,Rah,Ket</rl>
    <in>Work and rank bring conflict; position is won the hard way.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vishadhara Kala Sarpa</tl>
    <rl>InHouse,,Rah,11\Between,,all.pla,Rah,Ket</rl>
    <in>Gains with strife; far travel and elder siblings at odds.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sheshanaga Kala Sarpa</tl>
    <rl>InHouse,,Rah,12\Between,,all.pla,Rah,Ket</rl>
    <in>Secret enemies and spending; peace in seclusion.</in>
    <cm>Traditional; not in the old texts. Counted only with Rahu at the head, all planets between it and Ketu in the order of the signs.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kala Amrita</tl>
    <rl>Between,,all.pla,Ket,Rah</rl>
    <in>All planets lie behind Rahu and move towards Ketu's side: strong turns of fate, with release in the later part of life.</in>
    <cm>Traditional; not in the old texts.</cm>
    <vs>Rasi</vs>
    <ch>Kala Sarpa</ch>
  </yg>
</ksy>
