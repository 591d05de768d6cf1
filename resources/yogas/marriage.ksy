<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of marriage</nm>
  <au>Kestrav</au>
  <yg>
    <op>1</op>
    <tl>Mangal Dosha from the ascendant</tl>
    <rl>InHouse,,Mar,1,2,4,7,8,12</rl>
    <in>Heat and impatience in married life; a partner of like temper evens it out.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mangal Dosha from the Moon</tl>
    <rl>InHouse,,Mar,Moo,1,2,4,7,8,12</rl>
    <in>Feelings run high in marriage; quarrels are quickly begun.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mangal Dosha from Venus</tl>
    <rl>InHouse,,Mar,Ven,1,2,4,7,8,12</rl>
    <in>Desire is strong and exacting; affection needs patience.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mangal Dosha cancelled by dignity</tl>
    <rl>InHouse,,Mar,1,2,4,7,8,12\Dignity,,Mar,own,exa</rl>
    <in>Mars is strong where he stands and does little harm: energy serves the house.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mangal Dosha cancelled by Jupiter</tl>
    <rl>InHouse,,Mar,1,2,4,7,8,12\Influences,,Jup,Mar</rl>
    <in>Good sense checks the heat of Mars in marriage.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Good lord of the seventh</tl>
    <rl>InHouse,,L7,kentri\DignityMin,,L7,fri\Influences,,no.Sun+Mar+Sat,L7</rl>
    <in>A good partner and lasting harmony.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics only upon the seventh</tl>
    <rl>Influences,,any.Mer+Jup+Ven,B7\Influences,,no.Sun+Mar+Sat+Rah+Ket,B7</rl>
    <in>Marriage is protected; kindness on both sides.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics only upon the seventh</tl>
    <rl>Influences,,any.Sun+Mar+Sat,B7\Influences,,no.Mer+Jup+Ven,B7\InHouse,!,L7,7</rl>
    <in>Strain, delay or separation; marriage asks for work.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Seventh hemmed between malefics</tl>
    <rl>Hemmed,,B7,Sun+Mar+Sat\InHouse,,no.Mer+Jup+Ven,6,8</rl>
    <in>The partner or the marriage is under pressure from without.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus hemmed between malefics</tl>
    <rl>Hemmed,,Ven,Sun+Mar+Sat\Influences,,no.Mer+Jup,Ven</rl>
    <in>Love meets with obstacles.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the seventh in a dusthana</tl>
    <rl>InHouse,,L7,dus\DignityMax,,L7,ene</rl>
    <in>Marriage brings cost or distance.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Two malefics in the seventh</tl>
    <rl>InHouse,,min2.Sun+Mar+Sat+Rah+Ket,7</rl>
    <in>More than one bond, or one that is tried hard.</in>
    <cm>Phaladeepika, chapter 10 (the seventh house).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 1 and 7 related</tl>
    <rl>With,,L1,L7\OR\Mutual,,L1,L7</rl>
    <in>Husband and wife are of one mind.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus and the lord of the seventh with Jupiter</tl>
    <rl>Influences,,Jup,Ven\Influences,,Jup,L7</rl>
    <in>Fair dealing keeps love; a partner of good character.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Saturn upon the seventh and Venus</tl>
    <rl>Influences,,Sat,B7\Influences,,Sat,Ven</rl>
    <in>Marriage comes late or to one who is older; duty before romance.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus and Mars together</tl>
    <rl>With,,Ven,Mar</rl>
    <in>Strong attraction; passion that wants form.</in>
    <cm>Brihat Jataka, chapter 14 (two planets together).</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the seventh in the fifth or of the fifth in the seventh</tl>
    <rl>InHouse,,L7,5\OR\InHouse,,L5,7</rl>
    <in>Marriage by own choice and affection.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Marriage</ch>
  </yg>
</ksy>
